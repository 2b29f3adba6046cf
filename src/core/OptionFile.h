#pragma once

#include "core/OptionFlags.h"
#include "core/ProgramPaths.h"

namespace corvelle {

/// The options in force and the file that keeps them, for whoever changes an option.
class OptionFile {
 public:
  OptionFile(FileSystem& files, const ProgramPaths& paths, OptionFlags& flags)
      : Flags(flags), files_(files), paths_(paths) {}
  OptionFile(const OptionFile&) = delete;
  OptionFile& operator=(const OptionFile&) = delete;

  /// Writes the flags to their file. A failure is quiet: the flags stay in force for this run, the
  /// old file stays as it was, and the next save tries again.
  void SaveOptionFlags() {
    static_cast<void>(corvelle::SaveOptionFlags(files_, paths_.AppPath, Flags));
  }

  OptionFlags& Flags;

 private:
  FileSystem& files_;
  const ProgramPaths& paths_;
};

}  // namespace corvelle

#pragma once

#include "platform/ShellLinks.h"

namespace corvelle::win32 {

/// Links of the machine's shell. The thread must have been made ready for COM.
class Win32ShellLinks final : public ShellLinks {
 public:
  std::unique_ptr<ShellLinkObject> CreateLinkObject() override;
  bool LiesElsewhere(std::string_view linkFile) override;
  std::optional<ItemIdList> SpecialFolderLocation(WindowId window, int folder) override;
  std::optional<std::string> PathFromIDList(const ItemIdList& item) override;
};

}  // namespace corvelle::win32

#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/CodePage.h"

namespace corvelle::forms {

/// The paths in a block of clipboard format 15 (CF_HDROP), which another program made: a header of
/// 20 bytes, of which the first four give the place of the list and the last four tell wide from
/// narrow characters; then the paths, each with a NUL behind it, and one more NUL. Numbers are
/// little-endian. A list without its end ends with the block. Empty for a
/// malformed block.
[[nodiscard]] std::vector<std::string> ParseDropFiles(std::string_view block, const CodePage& ansi);

/// The text of a block of wide or narrow characters up to its first NUL.
[[nodiscard]] std::string ParseWideText(std::string_view block);
[[nodiscard]] std::string ParseNarrowText(std::string_view block, const CodePage& ansi);

/// A dragged web address (the formats "UniformResourceLocatorW" and "UniformResourceLocator"): its
/// first line, and the title that some sources give on the second one; trimmed.
struct DraggedLink {
  std::string Address;
  std::string Title;

  friend bool operator==(const DraggedLink&, const DraggedLink&) = default;
};
[[nodiscard]] DraggedLink ParseLink(std::string_view text);

/// The title in a block of the format "FileGroupDescriptorW" (or, with narrow characters,
/// "FileGroupDescriptor"), which names the file that a dragged link would become: the name without
/// its ".url". Empty for a malformed block and for any other file.
[[nodiscard]] std::string ParseLinkFileTitle(std::string_view block, bool wide,
                                             const CodePage& ansi);

}  // namespace corvelle::forms

#pragma once

#include "win32/UniqueHandle.h"

// After the headers of Windows that it builds on.
#include <shlobj.h>

namespace corvelle::win32 {

struct ItemTraits : NullHandleTraits<ITEMIDLIST*> {
  static void Close(ITEMIDLIST* item) noexcept { CoTaskMemFree(item); }
};

/// Owns the shell's name of an item: its place in the tree of all folders, or in its folder.
using UniqueItem = UniqueHandle<ItemTraits>;

}  // namespace corvelle::win32

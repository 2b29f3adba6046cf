#pragma once

namespace corvelle::win32 {

/// The program's first statement: from here on libraries that are named without a folder come from
/// the system's folder only, not from the program's own, nor the current one, nor those of PATH.
/// Without effect on a Windows 7 that lacks its update of 2011. What the program starts is not
/// concerned.
void KeepLibrariesToTheSystem() noexcept;

}  // namespace corvelle::win32

#pragma once

#include <optional>
#include <string>

namespace corvelle::e2e {

/// Makes a link by the system's own means; false when that failed. Needs no COM of the caller.
[[nodiscard]] bool MakeLinkFile(const std::wstring& link, const std::wstring& target,
                                const std::wstring& arguments, const std::wstring& folder);
/// The target of a link; nothing when it is missing or damaged.
[[nodiscard]] std::optional<std::wstring> LinkTargetOf(const std::wstring& link);
/// The user's Startup folder and the one of programs, without a trailing backslash.
[[nodiscard]] std::wstring StartupFolder();
[[nodiscard]] std::wstring ProgramsFolder();

}  // namespace corvelle::e2e

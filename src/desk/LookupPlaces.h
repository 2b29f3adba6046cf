#pragma once

#include <string>
#include <string_view>

#include "platform/Lookups.h"

namespace corvelle::desk {

// What the answer to a question depends on. A place is a drive ("C:"), a server ("\\SERVER") or the
// shell's own folders ("shell"); a lane is a place, or the extensions of the shell that look for
// icons there ("C:*").

inline constexpr char kIconMark = '*';

/// The place of a path, whatever its case; "shell" for a text that is no path of a disk.
[[nodiscard]] std::string PlaceOfPath(std::string_view path);

/// The lane in which a question is answered. Icons have one apart: what looks for them belongs to
/// others and must not hold up a listing.
[[nodiscard]] std::string LaneOfLookup(const Lookup& question);
/// The same for an icon that is looked for at another path than the question's: a link's target.
[[nodiscard]] std::string IconLaneOf(std::string_view path);

/// True for a lane in which icons are looked for.
[[nodiscard]] bool IsIconLane(std::string_view lane) noexcept;

/// The place of a lane.
[[nodiscard]] std::string PlaceOfLane(std::string_view lane);

/// True for the icon of a link file, which the shell looks for where the link leads.
[[nodiscard]] bool DependsOnTarget(const Lookup& question) noexcept;

/// The same text for equal questions, and for no others.
[[nodiscard]] std::string KeyOfLookup(const Lookup& question);

}  // namespace corvelle::desk

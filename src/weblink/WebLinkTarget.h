#pragma once

#include <string>
#include <string_view>

namespace corvelle {

class CodePage;

/// Where the entry of a dropped web address goes.
enum class LinkPlace {
  MenuItem,   // before an item of the menu that was open
  SingleRow,  // before a button of the row of single buttons
  NewSingle,  // a new single button behind the others
  MenuEnd     // the end of a button's menu
};

/// The text that says so, `Tag` of the dialog: "F" and an index; "SingleButtons", alone or with a
/// NUL and a file; an index, a NUL and a file.
struct WebLinkTarget {
  LinkPlace Place = LinkPlace::MenuEnd;
  std::string Menu;  // the menu as "F" and the button's index; empty for single buttons
  std::string File;  // empty where the tag names none

  friend bool operator==(const WebLinkTarget&, const WebLinkTarget&) = default;
};

/// The tag of a drop, by what the drop handlers tell (WebLinkPort::OfferWebLink). `newSingle` is
/// the file that a button behind the others would have.
[[nodiscard]] std::string LinkTag(std::string_view tag, std::string_view file,
                                  std::string_view newSingle);
[[nodiscard]] WebLinkTarget ParseLinkTag(std::string_view tag);

/// The title of an entry: the given one, or the address without its start where that is blank, so
/// that the entry can be seen.
[[nodiscard]] std::string LinkTitle(std::string_view title, std::string_view address);

/// False for an address that a record cannot hold whole: cut off, it would lead elsewhere.
[[nodiscard]] bool FitsRecord(std::string_view address, const CodePage& ansi);
/// What the user is told of one.
inline constexpr std::string_view kAddressTooLong =
    "This address is too long to be stored. Please shorten it.";

/// The number of the record before which an entry goes that was dropped on record `number` when
/// that held `stored`: that of the same record in `records` as they are now (570 bytes each), the
/// nearest of several; 0 when it is not there any more. Without `stored` the number stays.
[[nodiscard]] int PlaceOfRecord(std::string_view records, std::string_view stored, int number);

}  // namespace corvelle

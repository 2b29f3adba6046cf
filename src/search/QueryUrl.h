#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace corvelle {

/// The query as it is written in an address: a blank as "+", punctuation of ASCII in per cent form
/// but for "*", "-" and "."; all other characters as they are.
[[nodiscard]] std::string EncodeQuery(std::string_view query);

/// The same, and each byte of a character beyond ASCII in per cent form.
[[nodiscard]] std::string EncodeQueryUtf8(std::string_view query);

/// The address of a query by an engine's template: the text before the first "[", the encoded
/// query, and the text after the first "]". Between them stands "utf8" where the engine wants
/// characters beyond ASCII in per cent form; anything else there means nothing. Nothing for
/// a template in which one of them is missing.
[[nodiscard]] std::optional<std::string> QueryUrl(std::string_view urlTemplate,
                                                  std::string_view query);

}  // namespace corvelle

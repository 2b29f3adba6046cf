#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "icons/IconForm.h"
#include "platform/Lookups.h"
#include "platform/ShellIcons.h"

namespace corvelle {

// What the system is asked for an icon, and what is shown until the answer comes.
// Functions of the text alone.

/// The shell's list for icons of this size: small ones at 16, large ones otherwise. Pixels.
[[nodiscard]] IconList IconListOf(int size) noexcept;

/// The questions that lead to the icon of a form at `size` (pixels). The next one is asked when the
/// one before found nothing. Empty for what is drawn without a question.
[[nodiscard]] std::vector<Lookup> IconQuestions(const IconForm& form, bool shellDrawsIcons,
                                                int size = kSmallIconSize);

/// The same for the icon of a blank document, which stands for an icon that there is not.
/// `iconsPath` ends in a backslash.
[[nodiscard]] std::vector<Lookup> BlankIconQuestions(std::string_view iconsPath,
                                                     bool shellDrawsIcons,
                                                     int size = kSmallIconSize);

/// The extension in capitals (".TXT") of a file whose icon all files of that extension have. Empty
/// for kinds whose files have icons of their own (programs, links...) and for folders.
[[nodiscard]] std::string SharedIconExtension(const IconForm& form);

/// Key of the program's own picture (see Glyphs) of the kind of thing that a form means.
[[nodiscard]] std::string_view NeutralGlyph(const IconForm& form);

}  // namespace corvelle

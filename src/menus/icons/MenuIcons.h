#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "base/Geometry.h"
#include "core/IconSources.h"
#include "desk/DeskRule.h"
#include "forms/Alive.h"
#include "icons/IconForm.h"
#include "platform/Canvas.h"
#include "platform/Lookups.h"

namespace corvelle {

/// What is drawn in the icon cell of an item.
struct IconPicture {
  static constexpr int kNoCell = -1;

  int Cell = kNoCell;  // of the strip of icons
  std::string Glyph;   // key of a picture of the program, where there is no cell
  bool Final = true;   // false for a stand-in

  [[nodiscard]] bool LooksLike(const IconPicture& other) const noexcept {
    return Cell == other.Cell && Glyph == other.Glyph;
  }
};

/// The small icons of menus: each text is asked for once, of the desk, and then copied from a strip
/// of icons that lie side by side. In the place of an icon that is not known yet is the one that
/// was known last, that of its kind, or a picture of the program. Nothing here fails visibly: what
/// has no icon keeps an empty cell.
class MenuIcons {
 public:
  /// Width and height of a cell, pixels.
  static constexpr int kCell = 16;
  /// Milliseconds for which all that is asked for one opening may hold up the menu.
  static constexpr int kAtOnce = 60;

  explicit MenuIcons(const IconSources& from);
  ~MenuIcons();
  MenuIcons(const MenuIcons&) = delete;
  MenuIcons& operator=(const MenuIcons&) = delete;

  /// Up to that moment (as WindowSystem::Now) Find may wait for answers, without running events.
  void WaitUntil(std::int64_t moment);

  /// What is to be drawn now for an icon text, which is asked for if it is not known: at once, or,
  /// after the moment of WaitUntil, by the next turn of the message loop.
  IconPicture Find(std::string_view iconText);
  /// The same without asking.
  [[nodiscard]] IconPicture Peek(std::string_view iconText);
  /// Draws it into the cell at `at`.
  void Draw(Canvas& canvas, PixelPoint at, const IconPicture& picture) const;

  /// Called, by a turn of its own, when more is known of what Find asked for. It may end this.
  std::function<void()> Arrived;
  /// Nobody looks at what Find asked for any more: it is still asked for, after what is looked at.
  void PutAside();
  /// Nothing is told any more of what Find asked for: the menus are unloaded.
  void Stop();

  /// Asks for an icon when nothing more urgent is asked.
  void Fetch(std::string_view iconText);

  /// Forgets all icons, so that each is asked for again.
  void ResetPicIcons();

  /// How many icons the strip holds.
  [[nodiscard]] int Count() const noexcept { return cells_; }

 private:
  enum class State { New, Waiting, Found, Missing, NotAvailable };

  /// One icon text.
  struct Entry {
    IconForm Form;
    std::vector<Lookup> Questions;
    std::size_t Next = 0;  // of them, the one that is to be asked or is being asked
    State Is = State::New;
    std::int64_t AskedAt = 0;  // when the question that is being asked was asked first
    int Cell = IconPicture::kNoCell;
    bool OnShow = false;  // Find has asked for it
  };

  [[nodiscard]] IconForm Classify(std::string_view text) const;
  /// The entry of an icon text that is asked for, by its key; an empty key for other texts.
  std::string Enter(std::string_view text, const IconForm& form);
  std::string EnterBlank();
  /// Asks what is still to be asked for an entry; what is not answered at once comes to TakeLate.
  void Ask(const std::string& key, desk::Urgency how, bool mayWait);
  void Take(const std::string& key, std::size_t question, const desk::Reply& reply);
  void TakeLate(const std::string& key, std::size_t question, const desk::Reply& reply);
  /// What was not available may be asked again.
  void TryAgain(const std::string& key);
  /// What follows an answer, which may have been taken by others.
  void GoOn(const std::string& key);
  [[nodiscard]] int MayWait(const Lookup& question) const;
  [[nodiscard]] IconPicture PictureOf(const std::string& key);
  [[nodiscard]] IconPicture StandIn(const Entry& entry);
  void PostArrived();
  /// Asks in a turn of its own for what Find had no time to ask for.
  void PostAsking();
  void AskWhatIsLeft();

  /// Asks for what is fetched beforehand, one after the other.
  void GoOnFetching();
  void Fetched(const std::string& key);

  /// The cell of an icon of the system's list.
  int LoadSystemIcon(int index);
  /// The cell of a picture, which all texts that mean the same share.
  int CellOf(const IconPixels& pixels);
  /// Draws on a cell of the menu's ground and appends it to the strip.
  int AddCell(const std::function<void(Canvas&, PixelPoint)>& draw);
  void MakeRoom();

  const IconSources& from_;
  // Of questions to the desk.
  std::uint64_t shown_ = 0;
  std::uint64_t ahead_ = 0;
  std::int64_t waitUntil_ = 0;
  std::set<std::string> late_;  // lanes that have been waited for in vain since WaitUntil
  std::deque<std::string> toFetch_;
  std::set<std::string> fetching_;
  std::set<std::string> slow_;  // of these, those that hold up the others no longer
  bool posted_ = false;
  std::vector<std::string> left_;  // keys that Find had no time for
  std::unique_ptr<Canvas> picIcons_;
  int cells_ = 0;
  int room_ = 0;
  unsigned resets_ = 0;
  std::unordered_map<std::string, Entry> colIconFile_;  // by the text in lower case
  std::unordered_map<std::string, int> colIconIndex_;   // by "i" and the index in the system's list
  std::unordered_map<std::uint64_t, int> cellsByPixels_;
  std::unordered_map<std::string, int> cellsByExtension_;
  forms::Alive alive_;
};

}  // namespace corvelle

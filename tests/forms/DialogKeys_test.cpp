#include "forms/DialogKeys.h"

#include <gtest/gtest.h>

namespace corvelle::forms {
namespace {

constexpr ShiftState kPlain;
constexpr ShiftState kShift{.Shift = true};
constexpr ShiftState kCtrl{.Ctrl = true};
constexpr ShiftState kAlt{.Alt = true};
constexpr ShiftState kAltGr{.Ctrl = true, .Alt = true};

constexpr KeyFacts kButton{.Wants = {.Space = true}, .LettersPress = true, .TakesEnter = true};
constexpr KeyFacts kCheck{.Wants = {.Space = true}, .LettersPress = true};
constexpr KeyFacts kOption{.Wants = {.Space = true}, .LettersPress = true, .InGroup = true};
constexpr KeyFacts kText{
    .Wants = {.Arrows = true, .Paging = true, .Editing = true, .Typing = true}};
constexpr KeyFacts kManyLines{.Wants = {.Arrows = true,
                                        .Paging = true,
                                        .Editing = true,
                                        .Typing = true,
                                        .Enter = true,
                                        .Tab = true}};
constexpr KeyFacts kTree{
    .Wants = {.Arrows = true, .Paging = true, .Typing = true, .Function = key::F2}};
constexpr KeyFacts kOpenList{
    .Wants = {.Arrows = true, .Paging = true, .Enter = true, .Escape = true}};
constexpr KeyFacts kPicture{};

TEST(DialogKeys, WhoDealsWithAKey) {
  using enum DialogAction;
  struct Row {
    const char* Name;
    int Key;
    ShiftState Shift;
    DialogScene Scene;
    DialogAction Expected;
  };
  const DialogScene all{.HasDefault = true, .HasCancel = true, .HasAccessKey = true};
  const auto with = [&](const KeyFacts& focus) {
    DialogScene scene = all;
    scene.Focus = focus;
    return scene;
  };
  const Row rows[] = {
      {"Tab goes on", key::Tab, kPlain, with(kButton), NextControl},
      {"Shift+Tab goes back", key::Tab, kShift, with(kText), PreviousControl},
      {"Ctrl+Tab changes tabs, which the form does", key::Tab, kCtrl, with(kText), Form},
      {"Tab in a text of several lines", key::Tab, kPlain, with(kManyLines), Control},
      {"Shift+Tab there too", key::Tab, kShift, with(kManyLines), Control},
      {"Ctrl+Tab leaves it", key::Tab, kCtrl, with(kManyLines), Form},
      {"Enter on a button", key::Enter, kPlain, with(kButton), PressFocus},
      {"Enter elsewhere", key::Enter, kPlain, with(kText), PressDefault},
      {"Enter without a default button", key::Enter, kPlain, {.Focus = kText}, Nothing},
      {"Enter in several lines", key::Enter, kPlain, with(kManyLines), Control},
      {"Enter in an open list", key::Enter, kPlain, with(kOpenList), Control},
      {"Esc", key::Escape, kPlain, with(kText), PressCancel},
      {"Esc without a cancel button", key::Escape, kPlain, {.Focus = kText}, Nothing},
      {"Esc closes an open list first", key::Escape, kPlain, with(kOpenList), Control},
      {"Space presses a button", key::Space, kPlain, with(kButton), Control},
      {"Space is typed", key::Space, kPlain, with(kText), Control},
      {"Space on a picture", key::Space, kPlain, with(kPicture), Form},
      {"an arrow in a group goes on", key::Down, kPlain, with(kOption), NextInGroup},
      {"to the right too", key::Right, kPlain, with(kOption), NextInGroup},
      {"an arrow in a group goes back", key::Up, kPlain, with(kOption), PreviousInGroup},
      {"to the left too", key::Left, kPlain, with(kOption), PreviousInGroup},
      {"an arrow in a text", key::Left, kPlain, with(kText), Control},
      {"Shift and an arrow in a text", key::Left, kShift, with(kText), Control},
      {"an arrow on a button", key::Left, kPlain, with(kButton), Form},
      {"Home in a tree", key::Home, kPlain, with(kTree), Control},
      {"Home on a button", key::Home, kPlain, with(kButton), Form},
      {"Alt+Down opens a list", key::Down, kAlt, with(kOpenList), Control},
      {"Delete in a text", key::Delete, kPlain, with(kText), Control},
      {"Delete in a tree is a command", key::Delete, kPlain, with(kTree), Form},
      {"Ctrl+Z in a text", 'Z', kCtrl, with(kText), Control},
      {"Ctrl+C in a tree is a command", 'C', kCtrl, with(kTree), Form},
      {"Ctrl+S in a text is a command", 'S', kCtrl, with(kText), Form},
      {"a letter in a text", 'S', kPlain, with(kText), Control},
      {"a letter in a tree", 'S', kPlain, with(kTree), Control},
      {"a letter on a check box is told as a character", 'S', kPlain, with(kCheck), Form},
      {"Alt and an access key in a text", 'S', kAlt, with(kText), PressAccessKey},
      {"Alt and another letter", 'S', kAlt, {.Focus = kText}, Form},
      {"what AltGr types in a text", 'S', kAltGr, with(kText), Control},
      {"a sign too", 0xBA, kAltGr, with(kText), Control},
      {"and in a tree", 'S', kAltGr, with(kTree), Control},
      {"with Shift too", 'S', {.Shift = true, .Ctrl = true, .Alt = true}, with(kText), Control},
      {"AltGr and an access key on a button", 'S', kAltGr, with(kButton), Form},
      {"AltGr and a function key", key::F5, kAltGr, with(kText), Form},
      {"AltGr+F4 is the window's end too", key::F4, kAltGr, with(kText), Control},
      {"AltGr+Down opens a list too", key::Down, kAltGr, with(kOpenList), Control},
      {"Alt+Space is the window's menu", key::Space, kAlt, with(kButton), Control},
      {"Alt+F4 is the window's end", key::F4, kAlt, with(kText), Control},
      {"F5 in a text", key::F5, kPlain, with(kText), Form},
      {"F2 in a tree", key::F2, kPlain, with(kTree), Control},
      {"Ctrl+Tab beside tabs", key::Tab, kCtrl, {.Focus = kText, .HasTabs = true}, NextTab},
      {"back", key::Tab, {.Shift = true, .Ctrl = true}, {.HasTabs = true}, PreviousTab},
      {"Ctrl+PageDown beside tabs",
       key::PageDown,
       kCtrl,
       {.Focus = kText, .HasTabs = true},
       NextTab},
      {"PageDown by itself", key::PageDown, kPlain, {.Focus = kText, .HasTabs = true}, Control},
      {"Ctrl by itself", key::Ctrl, kCtrl, with(kText), Form},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(KeyAction(row.Key, row.Shift, row.Scene), row.Expected) << row.Name;
  }
}

TEST(DialogKeys, WhoDealsWithACharacter) {
  using enum DialogAction;
  struct Row {
    const char* Name;
    char32_t Character;
    DialogScene Scene;
    DialogAction Expected;
  };
  const Row rows[] = {
      {"a letter alone presses from a button",
       U'f',
       {.Focus = kButton, .HasAccessKey = true},
       PressAccessKey},
      {"and from an option", U'f', {.Focus = kOption, .HasAccessKey = true}, PressAccessKey},
      {"but not from a text", U'f', {.Focus = kText, .HasAccessKey = true}, Control},
      {"nor from a tree", U'f', {.Focus = kTree, .HasAccessKey = true}, Control},
      {"nor from a picture", U'f', {.Focus = kPicture, .HasAccessKey = true}, Form},
      {"a letter that is nobody's", U'f', {.Focus = kButton}, Form},
      {"what Enter types on a button", 13, {.Focus = kButton}, Nothing},
      {"what Backspace types in a text", 8, {.Focus = kText}, Control},
      {"what Space types on a button", U' ', {.Focus = kButton}, Nothing},
      {"what Space types in a text", U' ', {.Focus = kText}, Control},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(CharacterAction(row.Character, row.Scene), row.Expected) << row.Name;
  }
}

TEST(DialogKeys, ShiftF10AndTheMenuKeyAskForTheContextMenu) {
  EXPECT_TRUE(AsksForMenu(key::Menu, kPlain));
  EXPECT_TRUE(AsksForMenu(key::F10, kShift));
  EXPECT_FALSE(AsksForMenu(key::F10, kPlain));
  EXPECT_FALSE(AsksForMenu(key::F10, {.Shift = true, .Ctrl = true}));
}

}  // namespace
}  // namespace corvelle::forms

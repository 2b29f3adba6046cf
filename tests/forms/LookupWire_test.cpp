#include "forms/LookupWire.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace corvelle::forms {
namespace {

constexpr std::size_t kLength = 4;

WireQuestion AnyQuestion() {
  return {.Id = 0x1122334455667788U,
          .Question = {.Kind = LookupKind::IconInFile,
                       .Path = "C:\\Tools\\\xD0\xB6.dll",
                       .Number = -7,
                       .List = IconList::Large,
                       .Size = 32}};
}

LookupAnswer AnyPicture() {
  return {.Id = 9, .Value = IconPixels{2, 3, {1, 2, 0xFF00FF00U, 4, 5, 0x80ABCDEFU}}};
}

std::string ContentOf(const std::string& message) { return message.substr(kLength); }

TEST(LookupWire, AQuestionComesOutAsItWentIn) {
  const auto back = ParseWireQuestion(ContentOf(FormatWireQuestion(AnyQuestion())));
  ASSERT_TRUE(back.has_value());
  EXPECT_EQ(back->Id, AnyQuestion().Id);
  EXPECT_EQ(back->Question.Kind, LookupKind::IconInFile);
  EXPECT_EQ(back->Question.Path, AnyQuestion().Question.Path);
  EXPECT_EQ(back->Question.Number, -7);
  EXPECT_EQ(back->Question.List, IconList::Large);
  EXPECT_EQ(back->Question.Size, 32);
}

TEST(LookupWire, AnswersComeOutAsTheyWentIn) {
  const LookupAnswer answers[] = {
      AnyPicture(),
      {.Id = 1, .Value = std::string("A name")},
      {.Id = 2, .End = LookupEnd::Failed},
      {.Id = 3, .Value = IconPixels{}},
  };
  for (const LookupAnswer& answer : answers) {
    const auto back = ParseWireAnswer(ContentOf(FormatWireAnswer(answer)));
    ASSERT_TRUE(back.has_value()) << answer.Id;
    EXPECT_EQ(back->Id, answer.Id);
    EXPECT_EQ(back->End, answer.End);
    EXPECT_EQ(back->Value, answer.Value);
  }
}

TEST(LookupWire, OnlyQuestionsAboutIconsAndNamesGo) {
  for (const LookupKind kind :
       {LookupKind::IsThere, LookupKind::FolderEntries, LookupKind::Drive, LookupKind::LinkTarget,
        LookupKind::ShellEntries, LookupKind::ShortPaths, LookupKind::IconCount})
    EXPECT_EQ(FormatWireQuestion({1, {.Kind = kind, .Path = "C:\\"}}), "");
  std::string content = ContentOf(FormatWireQuestion(AnyQuestion()));
  for (int kind = 0; kind < 256; ++kind) {
    content[9] = static_cast<char>(kind);
    const bool known = kind <= static_cast<int>(LookupKind::ShellIcon) &&
                       GoesOverWire(static_cast<LookupKind>(kind));
    EXPECT_EQ(ParseWireQuestion(content).has_value(), known) << kind;
  }
}

TEST(LookupWire, WhatEndsEarlyOrGoesOnTooLongIsNoMessage) {
  const std::string question = ContentOf(FormatWireQuestion(AnyQuestion()));
  const std::string answer = ContentOf(FormatWireAnswer(AnyPicture()));
  for (std::size_t length = 0; length < question.size(); ++length)
    EXPECT_FALSE(ParseWireQuestion(question.substr(0, length)).has_value()) << length;
  for (std::size_t length = 0; length < answer.size(); ++length)
    EXPECT_FALSE(ParseWireAnswer(answer.substr(0, length)).has_value()) << length;
  EXPECT_FALSE(ParseWireQuestion(question + "x").has_value());
  EXPECT_FALSE(ParseWireAnswer(answer + "x").has_value());
}

TEST(LookupWire, WhatIsTooLargeDoesNotGoAndIsNotTaken) {
  EXPECT_EQ(FormatWireQuestion(
                {1, {.Kind = LookupKind::FileIcon, .Path = std::string(kMostWireText + 1, 'x')}}),
            "");
  EXPECT_EQ(FormatWireAnswer({.Value = IconPixels{257, 1, std::vector<std::uint32_t>(257)}}), "");
  EXPECT_EQ(FormatWireAnswer({.Value = IconPixels{2, 2, {1, 2, 3}}}), "");
  // 257 by 1 pixels, as another end might send it.
  std::string wide =
      ContentOf(FormatWireAnswer({.Value = IconPixels{256, 1, std::vector<std::uint32_t>(256)}}));
  wide[11] = 1;
  wide += std::string(4, 'x');
  EXPECT_FALSE(ParseWireAnswer(wide).has_value());
  WireQuestion large = AnyQuestion();
  large.Question.Size = 257;
  EXPECT_FALSE(ParseWireQuestion(ContentOf(FormatWireQuestion(large))).has_value());
}

TEST(LookupWire, APathIsTextWithoutANul) {
  for (const std::string& path : {std::string("C:\\a\0b", 6), std::string("C:\\\xFF")}) {
    const WireQuestion question{1, {.Kind = LookupKind::FileIcon, .Path = path}};
    EXPECT_FALSE(ParseWireQuestion(ContentOf(FormatWireQuestion(question))).has_value());
  }
}

TEST(LookupWire, AnotherVersionIsNotTaken) {
  std::string question = ContentOf(FormatWireQuestion(AnyQuestion()));
  std::string answer = ContentOf(FormatWireAnswer(AnyPicture()));
  question[0] = answer[0] = 2;
  EXPECT_FALSE(ParseWireQuestion(question).has_value());
  EXPECT_FALSE(ParseWireAnswer(answer).has_value());
}

TEST(WireReader, TakesMessagesFromPiecesOfAnyLength) {
  const std::string first = FormatWireQuestion(AnyQuestion());
  const std::string second = FormatWireAnswer(AnyPicture());
  for (std::size_t piece = 1; piece <= first.size() + second.size(); ++piece) {
    WireReader reader;
    std::vector<std::string> taken;
    const std::string all = first + second;
    for (std::size_t at = 0; at < all.size(); at += piece) {
      reader.Append(std::string_view(all).substr(at, piece));
      while (auto message = reader.Next()) taken.push_back(*std::move(message));
    }
    EXPECT_EQ(taken, (std::vector{ContentOf(first), ContentOf(second)})) << piece;
    EXPECT_FALSE(reader.IsBroken());
  }
}

TEST(WireReader, AMessageThatIsTooLongBreaksItOff) {
  WireReader reader;
  reader.Append(std::string("\x01\x00\x08\x00", 4));  // one more than 512 KB
  EXPECT_FALSE(reader.Next().has_value());
  EXPECT_TRUE(reader.IsBroken());
  reader.Append(FormatWireQuestion(AnyQuestion()));
  EXPECT_FALSE(reader.Next().has_value());
}

}  // namespace
}  // namespace corvelle::forms

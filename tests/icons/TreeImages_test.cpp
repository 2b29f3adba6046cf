#include "icons/TreeImages.h"

#include <gtest/gtest.h>

#include "core/Program.h"
#include "forms/Form.h"
#include "forms/TreeView.h"
#include "icons/AskedIcons.h"
#include "sim/World.h"

namespace corvelle {
namespace {

class TreeImagesDesk : public testing::Test {
 protected:
  class TreeForm final : public forms::Form {
   public:
    explicit TreeForm(forms::WindowSystem& windows)
        : Form(windows, "TreeForm", forms::BorderStyle::Fixed) {}
    forms::TreeView Tree{*this, "Tree"};
  };

  sim::World world;
  Program program{world.Services(), world.Windows()};
  TreeForm form{world.Windows()};
  AskedIcons icons{program.IconSources, IconCaller::Tree};
  TreeImages images{form.Tree};
};

TEST_F(TreeImagesDesk, APictureOfTheProgramHasOneImageHoweverOftenItIsShown) {
  const int first = images.OfLook({.Glyph = "program"}, icons);
  EXPECT_EQ(images.OfGlyph("program"), first);
  EXPECT_NE(images.OfGlyph("document"), first);
  EXPECT_EQ(form.Tree.ImageCount(), 2U);
}

TEST_F(TreeImagesDesk, EachIconHasAnImageOfItsOwn) {
  const int first = images.OfLook({.SystemIndex = 30}, icons);
  const int second = images.OfLook({.SystemIndex = 31}, icons);
  EXPECT_NE(first, second);
  EXPECT_EQ(form.Tree.ImageCount(), 2U);
}

TEST_F(TreeImagesDesk, WhatCannotBeDrawnIsTheQuestionMark) {
  const int mark = images.OfGlyph("qmark");
  EXPECT_EQ(images.OfGlyph("no such picture"), mark);
  EXPECT_EQ(images.OfLook({}, icons), mark);
  EXPECT_EQ(form.Tree.ImageCount(), 1U);
}

TEST_F(TreeImagesDesk, AnImageWithTheMarkOfAMissingTargetIsMadeOnce) {
  const int plain = images.OfGlyph("document");
  const int marked = images.Marked(plain);
  EXPECT_NE(marked, plain);
  EXPECT_EQ(images.Marked(plain), marked);
  EXPECT_NE(images.Marked(images.OfGlyph("program")), marked);
  EXPECT_EQ(form.Tree.ImageCount(), 4U);
}

TEST_F(TreeImagesDesk, TheyAreMadeAgainAfterTheyWereCleared) {
  static_cast<void>(images.Marked(images.OfGlyph("document")));
  images.Clear();
  EXPECT_EQ(form.Tree.ImageCount(), 0U);
  EXPECT_EQ(images.OfGlyph("program"), 0);
  EXPECT_EQ(images.Marked(0), 1);
}

}  // namespace
}  // namespace corvelle

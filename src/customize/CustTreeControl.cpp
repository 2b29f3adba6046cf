#include "customize/CustTreeControl.h"

#include <algorithm>
#include <utility>

#include "base/Text.h"
#include "icons/IconForm.h"

namespace corvelle {

namespace {

constexpr int kPictureWait = 1;  // milliseconds
constexpr int kPicturesAtOnce = 8;
constexpr int kAtOnce = 40;  // milliseconds for which one icon may hold up the others
/// Pictures that are drawn here, by their icon texts in small letters.
constexpr std::pair<std::string_view, std::string_view> kOwnPictures[] = {
    {"menulineseparator", "sep"},
    {"menubreaker", "sep"},
    {"new", "new"},
    {"button", "button"},
    {"unknown", "unknown"}};

}  // namespace

CustTreeControl::CustTreeControl(const IconSources& icons, SlowQuestions& slow, CustTree& tree,
                                 forms::TreeView& control)
    : tree_(tree),
      control_(control),
      targets_(slow, icons.Windows),
      icons_(icons, IconCaller::Tree),
      pictures_(control),
      tmrPictures_(icons.Windows) {
  targets_.Changed = [this](CustRef node) {
    if (tree_.IsInTree(node)) NodeChanged(node);
  };
  tree_.SetView(this);
  tmrPictures_.SetInterval(kPictureWait);
  tmrPictures_.Tick = [this] { ShowNext(); };
}

CustTreeControl::~CustTreeControl() { tree_.SetView(nullptr); }

forms::NodeId CustTreeControl::IdOf(CustRef node) const {
  const auto found = ids_.find(node);
  return found != ids_.end() ? found->second : forms::kNoNode;
}

CustRef CustTreeControl::RefOf(forms::NodeId id) const {
  const auto found = refs_.find(id);
  return found != refs_.end() ? found->second : kNoRef;
}

void CustTreeControl::Clear() {
  tmrPictures_.SetEnabled(false);
  targets_.Clear();
  icons_.Drop();
  TreeCleared();
}

void CustTreeControl::ForgetImages() {
  pictures_.Clear();
  images_.clear();
}

void CustTreeControl::TreeCleared() {
  control_.Clear();
  ids_.clear();
  refs_.clear();
  waiting_.clear();
}

void CustTreeControl::NodeAdded(CustRef node) { Insert(node, tree_.Parent(node), NextShown(node)); }

void CustTreeControl::NodeRemoved(CustRef node) {
  const forms::NodeId id = IdOf(node);
  Forget(node);
  control_.Remove(id);
}

void CustTreeControl::NodeMoved(CustRef node) {
  control_.MoveNode(IdOf(node), IdOf(tree_.Parent(node)), NextShown(node));
}

void CustTreeControl::NodeChanged(CustRef node) {
  const forms::NodeId id = IdOf(node);
  if (id == forms::kNoNode) return;
  const forms::NodeLook look = LookOf(node);
  if (look != control_.Look(id)) control_.SetLook(id, look);
}

void CustTreeControl::ChildrenReordered(CustRef parent) {
  const forms::TreeView::FreezeScope freeze(control_);
  const forms::NodeId id = IdOf(parent);
  for (const CustRef child : tree_.Children(parent)) {
    control_.MoveNode(IdOf(child), id, forms::kNoNode);
  }
}

void CustTreeControl::Insert(CustRef node, CustRef parent, forms::NodeId before) {
  const forms::NodeId id = control_.Insert(IdOf(parent), before, LookOf(node));
  ids_[node] = id;
  refs_[id] = node;
  for (const CustRef child : tree_.Children(node)) Insert(child, node, forms::kNoNode);
}

void CustTreeControl::Forget(CustRef node) {
  for (const CustRef child : tree_.Children(node)) Forget(child);
  refs_.erase(IdOf(node));
  ids_.erase(node);
}

forms::NodeId CustTreeControl::NextShown(CustRef node) const {
  const CustRef parent = tree_.Parent(node);
  // The last one, as each is while a menu is read, needs no search among its siblings.
  if (parent != kNoRef && tree_.Children(parent).back() == node) return forms::kNoNode;
  // Of several that come at once the later ones are not shown yet.
  for (CustRef next = tree_.Next(node); next != kNoRef; next = tree_.Next(next)) {
    if (const forms::NodeId id = IdOf(next); id != forms::kNoNode) return id;
  }
  return forms::kNoNode;
}

forms::NodeLook CustTreeControl::LookOf(CustRef node) {
  const CustNode& content = tree_.At(node);
  forms::NodeLook look;
  look.Text = content.Text;
  look.Dimmed = content.Picture.Hidden;
  look.Image = PlainImage(node);
  if (ImageOf(content.Picture) < 0) {
    waiting_.push_back(node);
    tmrPictures_.SetEnabled(true);
  }
  if (!tree_.IsRoot(node) && targets_.Ask(node, content.Entry.FileExe)) {
    look.Image = pictures_.Marked(look.Image);
  }
  return look;
}

int CustTreeControl::ImageOf(const NodePicture& picture) {
  if (picture.Shown == NodePicture::Kind::Root) return pictures_.OfGlyph("tm");
  if (picture.Shown == NodePicture::Kind::Unknown) return pictures_.OfGlyph("unknown");
  const std::string icon = LowerCase(picture.Icon);
  for (const auto& [text, glyph] : kOwnPictures) {
    if (icon == text) return pictures_.OfGlyph(std::string(glyph));
  }
  const auto found = images_.find(icon);
  return found != images_.end() ? found->second : -1;
}

int CustTreeControl::PlainImage(CustRef node) {
  const int image = ImageOf(tree_.At(node).Picture);
  return image < 0 ? pictures_.OfGlyph("unknown") : image;
}

bool CustTreeControl::IsMissing(CustRef node) const {
  return !tree_.IsRoot(node) && targets_.IsMissing(tree_.At(node).Entry.FileExe);
}

void CustTreeControl::LookUp(CustRef node) {
  if (!tree_.IsInTree(node)) return;
  const std::string icon = tree_.At(node).Picture.Icon;
  if (ImageOf(tree_.At(node).Picture) < 0) {
    const IconLook look = icons_.Ask(icon, kSmallIconSize, kAtOnce,
                                     [this, icon](const IconLook& late) { TakeLate(icon, late); });
    images_[LowerCase(icon)] = pictures_.OfLook(look, icons_);
  }
  NodeChanged(node);
}

void CustTreeControl::TakeLate(const std::string& icon, const IconLook& look) {
  images_[LowerCase(icon)] = pictures_.OfLook(look, icons_);
  for (const auto& [node, id] : ids_) {
    const NodePicture& picture = tree_.At(node).Picture;
    if (picture.Shown == NodePicture::Kind::Icon && EqualNoCase(picture.Icon, icon))
      NodeChanged(node);
  }
}

void CustTreeControl::ShowNext() {
  for (int i = 0; i < kPicturesAtOnce && !waiting_.empty(); ++i) {
    const CustRef node = waiting_.front();
    waiting_.pop_front();
    LookUp(node);
  }
  if (waiting_.empty()) tmrPictures_.SetEnabled(false);
}

}  // namespace corvelle

#include "win32/Win32ShellLinks.h"

#include "win32/ComPointer.h"
#include "win32/ItemIds.h"
#include "win32/Wide.h"
#include "win32/Win32ShellIcons.h"

namespace corvelle::win32 {

namespace {

// Arguments can be longer than a path.
constexpr int kTextSize = 4096;

bool HoldsNul(std::string_view text) { return text.find('\0') != std::string_view::npos; }

/// True for a chain of items that ends where the bytes end: the system trusts its lengths.
bool IsWhole(const std::string& bytes) {
  std::size_t at = 0;
  while (bytes.size() - at >= sizeof(USHORT)) {
    const auto low = static_cast<unsigned char>(bytes[at]);
    const auto high = static_cast<unsigned char>(bytes[at + 1]);
    const std::size_t length = low + std::size_t{256} * high;
    if (length == 0) return at + sizeof(USHORT) == bytes.size();
    if (length < sizeof(USHORT) || length > bytes.size() - at) return false;
    at += length;
  }
  return false;
}

ItemIdList FromSystem(const ITEMIDLIST* item) {
  if (item == nullptr) return {};
  return {.Bytes = {reinterpret_cast<const char*>(item), ILGetSize(item)}};
}

const ITEMIDLIST* ToSystem(const ItemIdList& item) {
  return reinterpret_cast<const ITEMIDLIST*>(item.Bytes.data());
}

class Win32ShellLinkObject final : public ShellLinkObject {
 public:
  /// False when the system makes no link.
  bool Create() {
    return SUCCEEDED(CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER,
                                      IID_IShellLinkW, link_.ReceiveVoid())) &&
           SUCCEEDED(link_->QueryInterface(IID_IPersistFile, file_.ReceiveVoid()));
  }

  bool SetPath(std::string_view file) override { return Set(&IShellLinkW::SetPath, file); }
  bool SetWorkingDirectory(std::string_view folder) override {
    return Set(&IShellLinkW::SetWorkingDirectory, folder);
  }
  bool SetArguments(std::string_view arguments) override {
    return Set(&IShellLinkW::SetArguments, arguments);
  }
  bool SetHotkey(std::uint16_t hotKey) override { return SUCCEEDED(link_->SetHotkey(hotKey)); }
  bool SetIconLocation(std::string_view file, std::int32_t index) override {
    return !HoldsNul(file) && SUCCEEDED(link_->SetIconLocation(Wide(file).c_str(), index));
  }
  bool SetShowCmd(std::int32_t showCmd) override { return SUCCEEDED(link_->SetShowCmd(showCmd)); }
  bool SetIDList(const ItemIdList& item) override {
    return IsWhole(item.Bytes) && SUCCEEDED(link_->SetIDList(ToSystem(item)));
  }

  bool Resolve(unsigned flags) override { return SUCCEEDED(link_->Resolve(nullptr, flags)); }

  std::optional<std::string> GetPath() override {
    std::wstring text(kTextSize, L'\0');
    if (FAILED(link_->GetPath(text.data(), kTextSize, nullptr, 0))) return std::nullopt;
    const std::wstring path = text.c_str();
    // No path has one: the link file keeps its path in a code page that lacks a letter, while the
    // item has them all.
    if (path.find(L'?') != std::wstring::npos) {
      UniqueItem item;
      text.assign(MAX_PATH, L'\0');
      if (SUCCEEDED(link_->GetIDList(item.Receive())) && item &&
          SHGetPathFromIDListW(item.Get(), text.data()) != FALSE) {
        return Narrow(text.c_str());
      }
    }
    return Narrow(path);
  }
  std::optional<std::string> GetWorkingDirectory() override {
    return Get(&IShellLinkW::GetWorkingDirectory);
  }
  std::optional<std::string> GetArguments() override { return Get(&IShellLinkW::GetArguments); }
  std::optional<std::string> GetDescription() override { return Get(&IShellLinkW::GetDescription); }
  std::optional<std::uint16_t> GetHotkey() override {
    WORD hotKey = 0;
    if (FAILED(link_->GetHotkey(&hotKey))) return std::nullopt;
    return hotKey;
  }
  std::optional<IconLocation> GetIconLocation() override {
    std::wstring text(kTextSize, L'\0');
    int index = 0;
    if (FAILED(link_->GetIconLocation(text.data(), kTextSize, &index))) return std::nullopt;
    return IconLocation{.File = Narrow(text.c_str()), .Index = index};
  }
  std::optional<ItemIdList> GetIDList() override {
    UniqueItem item;
    if (FAILED(link_->GetIDList(item.Receive()))) return std::nullopt;
    return FromSystem(item.Get());
  }
  std::optional<std::int32_t> GetShowCmd() override {
    int showCmd = 0;
    if (FAILED(link_->GetShowCmd(&showCmd))) return std::nullopt;
    return showCmd;
  }

  bool Load(std::string_view linkFile) override {
    return !linkFile.empty() && !HoldsNul(linkFile) &&
           SUCCEEDED(file_->Load(Wide(linkFile).c_str(), STGM_READ));
  }
  bool Save(std::string_view linkFile) override {
    return !linkFile.empty() && !HoldsNul(linkFile) &&
           SUCCEEDED(file_->Save(Wide(linkFile).c_str(), TRUE));
  }

 private:
  bool Set(HRESULT (STDMETHODCALLTYPE IShellLinkW::*setter)(LPCWSTR), std::string_view text) {
    return !HoldsNul(text) && SUCCEEDED((link_.Get()->*setter)(Wide(text).c_str()));
  }
  std::optional<std::string> Get(HRESULT (STDMETHODCALLTYPE IShellLinkW::*getter)(LPWSTR, int)) {
    std::wstring text(kTextSize, L'\0');
    if (FAILED((link_.Get()->*getter)(text.data(), kTextSize))) return std::nullopt;
    return Narrow(text.c_str());
  }

  ComPointer<IShellLinkW> link_;
  ComPointer<IPersistFile> file_;
};

}  // namespace

std::unique_ptr<ShellLinkObject> Win32ShellLinks::CreateLinkObject() {
  auto link = std::make_unique<Win32ShellLinkObject>();
  if (!link->Create()) return nullptr;
  return link;
}

bool Win32ShellLinks::LiesElsewhere(std::string_view linkFile) {
  return !HoldsNul(linkFile) && win32::LiesElsewhere(GetFileAttributesW(Wide(linkFile).c_str()));
}

std::optional<ItemIdList> Win32ShellLinks::SpecialFolderLocation(WindowId window, int folder) {
  UniqueItem item;
  if (FAILED(SHGetSpecialFolderLocation(ToHwnd(window), folder, item.Receive()))) {
    return std::nullopt;
  }
  return FromSystem(item.Get());
}

std::optional<std::string> Win32ShellLinks::PathFromIDList(const ItemIdList& item) {
  std::wstring path(MAX_PATH, L'\0');
  if (!IsWhole(item.Bytes) || SHGetPathFromIDListW(ToSystem(item), path.data()) == FALSE) {
    return std::nullopt;
  }
  return Narrow(path.c_str());
}

}  // namespace corvelle::win32

#include "e2e/DeskLinks.h"

#include <windows.h>

#include <shlobj.h>

namespace corvelle::e2e {

namespace {

/// A link of the system, for the length of a scope; COM stands as long.
class Link {
 public:
  Link() {
    CoInitialize(nullptr);
    CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW,
                     reinterpret_cast<void**>(&link_));
    if (link_ != nullptr) {
      link_->QueryInterface(IID_IPersistFile, reinterpret_cast<void**>(&file_));
    }
  }
  Link(const Link&) = delete;
  Link& operator=(const Link&) = delete;
  ~Link() {
    if (file_ != nullptr) file_->Release();
    if (link_ != nullptr) link_->Release();
    CoUninitialize();
  }

  explicit operator bool() const { return file_ != nullptr; }
  IShellLinkW* operator->() const { return link_; }
  [[nodiscard]] bool Save(const std::wstring& path) const {
    return SUCCEEDED(file_->Save(path.c_str(), TRUE));
  }
  [[nodiscard]] bool Load(const std::wstring& path) const {
    return SUCCEEDED(file_->Load(path.c_str(), STGM_READ));
  }

 private:
  IShellLinkW* link_ = nullptr;
  IPersistFile* file_ = nullptr;
};

}  // namespace

bool MakeLinkFile(const std::wstring& link, const std::wstring& target,
                  const std::wstring& arguments, const std::wstring& folder) {
  const Link made;
  return made && SUCCEEDED(made->SetPath(target.c_str())) &&
         SUCCEEDED(made->SetArguments(arguments.c_str())) &&
         (folder.empty() || SUCCEEDED(made->SetWorkingDirectory(folder.c_str()))) &&
         made.Save(link);
}

std::optional<std::wstring> LinkTargetOf(const std::wstring& link) {
  const Link read;
  wchar_t target[MAX_PATH] = {};
  if (!read || !read.Load(link) || FAILED(read->GetPath(target, MAX_PATH, nullptr, 0))) {
    return std::nullopt;
  }
  return target;
}

std::wstring StartupFolder() {
  wchar_t folder[MAX_PATH] = {};
  SHGetSpecialFolderPathW(nullptr, folder, CSIDL_STARTUP, FALSE);
  return folder;
}

std::wstring ProgramsFolder() {
  wchar_t folder[MAX_PATH] = {};
  SHGetSpecialFolderPathW(nullptr, folder, CSIDL_PROGRAMS, TRUE);
  return folder;
}

}  // namespace corvelle::e2e

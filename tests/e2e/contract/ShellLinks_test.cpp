#include "win32/Win32ShellLinks.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <ole2.h>
#include <shlobj.h>

#include "Com.h"
#include "TempFolder.h"
#include "platform/ShellLinksContract.h"
#include "win32/ComPointer.h"
#include "win32/Win32Files.h"

namespace corvelle {
namespace {

using win32::Wide;

class RealLinks final : public ContractLinks {
 public:
  RealLinks() {
    if (!files_.MakeFolder(folder_)) ADD_FAILURE() << "no folder";
  }
  ShellLinks& Links() override { return links_; }
  FileSystem& Files() override { return files_; }
  std::string Folder() override { return folder_ + "\\"; }
  int FolderWithPath() override { return CSIDL_STARTUP; }
  int FolderWithoutPath() override { return CSIDL_DRIVES; }

 private:
  Com com_;
  TempFolder temp_;
  std::string folder_ = temp_.Path() + "Zo\xC3\xAB \xD0\xB6";
  win32::Win32ShellLinks links_;
  win32::Win32Files files_;
};

std::unique_ptr<ContractLinks> MakeRealLinks() { return std::make_unique<RealLinks>(); }

INSTANTIATE_TEST_SUITE_P(Windows, ShellLinksContract, testing::Values(MakeRealLinks));

struct LinksOfOthers : testing::Test {
  Com Ready;
  TempFolder Temp;
  win32::Win32Files Files;
  win32::Win32ShellLinks Links;
  std::string Target = Temp.Path() + "tool.exe";
  std::string File = Temp.Path() + "other.lnk";

  /// A link made by the system's own means, with the help of `fill`.
  template <class Fill>
  bool Make(Fill fill) {
    win32::ComPointer<IShellLinkW> link;
    win32::ComPointer<IPersistFile> file;
    return SUCCEEDED(CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER,
                                      IID_IShellLinkW, link.ReceiveVoid())) &&
           SUCCEEDED(link->QueryInterface(IID_IPersistFile, file.ReceiveVoid())) &&
           fill(*link.Get()) && SUCCEEDED(file->Save(Wide(File).c_str(), TRUE));
  }
};

TEST_F(LinksOfOthers, AreReadWithAllTheirParts) {
  ASSERT_TRUE(Files.Write(Target, "x"));
  ASSERT_TRUE(Make([&](IShellLinkW& link) {
    return SUCCEEDED(link.SetPath(Wide(Target).c_str())) &&
           SUCCEEDED(link.SetDescription(L"What it is for")) &&
           SUCCEEDED(link.SetArguments(L"-a -b")) &&
           SUCCEEDED(link.SetWorkingDirectory(L"%windir%")) &&
           SUCCEEDED(link.SetIconLocation(L"C:\\windows\\notepad.exe", -2)) &&
           SUCCEEDED(link.SetHotkey(0x0641)) && SUCCEEDED(link.SetShowCmd(SW_SHOWMAXIMIZED));
  }));
  const auto read = Links.CreateLinkObject();
  ASSERT_NE(read, nullptr);
  ASSERT_TRUE(read->Load(File));
  EXPECT_EQ(read->GetPath(), Target);
  EXPECT_EQ(read->GetDescription(), "What it is for");
  EXPECT_EQ(read->GetArguments(), "-a -b");
  EXPECT_EQ(read->GetWorkingDirectory(), "%windir%");
  EXPECT_EQ(read->GetIconLocation(), (IconLocation{"C:\\windows\\notepad.exe", -2}));
  EXPECT_EQ(read->GetHotkey(), 0x0641);
}

TEST_F(LinksOfOthers, ToAnItemAloneAreReadByTheItemsPath) {
  ASSERT_TRUE(Files.Write(Target, "x"));
  ITEMIDLIST* item = ILCreateFromPathW(Wide(Target).c_str());
  ASSERT_NE(item, nullptr);
  const bool made = Make([&](IShellLinkW& link) { return SUCCEEDED(link.SetIDList(item)); });
  ILFree(item);
  ASSERT_TRUE(made);
  const auto read = Links.CreateLinkObject();
  ASSERT_NE(read, nullptr);
  ASSERT_TRUE(read->Load(File));
  EXPECT_EQ(read->GetPath(), Target);
}

TEST_F(LinksOfOthers, ToAMissingTargetStillSayWhereItWas) {
  ASSERT_TRUE(
      Make([&](IShellLinkW& link) { return SUCCEEDED(link.SetPath(L"C:\\gone\\tool.exe")); }));
  const auto read = Links.CreateLinkObject();
  ASSERT_NE(read, nullptr);
  ASSERT_TRUE(read->Load(File));
  EXPECT_EQ(read->GetPath(), "C:\\gone\\tool.exe");
}

TEST_F(LinksOfOthers, CutShortAnywhereBringNoHarm) {
  ASSERT_TRUE(Files.Write(Target, "x"));
  ASSERT_TRUE(Make([&](IShellLinkW& link) {
    return SUCCEEDED(link.SetPath(Wide(Target).c_str())) && SUCCEEDED(link.SetArguments(L"-a"));
  }));
  const auto whole = Files.Read(File, 0, 65536);
  ASSERT_TRUE(whole);
  const std::string part = Temp.Path() + "part.lnk";
  for (std::size_t length = 0; length < whole->size(); ++length) {
    ASSERT_TRUE(Files.Write(part, std::string_view(*whole).substr(0, length)));
    const auto read = Links.CreateLinkObject();
    ASSERT_NE(read, nullptr);
    // How much of it the system still understands is its affair; less than its head is nothing.
    EXPECT_FALSE(read->Load(part) && length < 76) << length;
  }
  EXPECT_EQ(FindWindowW(L"#32770", nullptr), nullptr);
}

TEST_F(LinksOfOthers, AnItemWhoseLengthsLieIsRefused) {
  const auto link = Links.CreateLinkObject();
  ASSERT_NE(link, nullptr);
  using namespace std::string_literals;
  for (const std::string& bytes : {"x"s, "\x10\x00"s, "\x04\x00zz"s, "\x01\x00\x00\x00"s,
                                   "\xFF\xFFzz\x00\x00"s, "\x00\x00more"s}) {
    EXPECT_FALSE(link->SetIDList({bytes})) << bytes.size() << " bytes";
    EXPECT_EQ(Links.PathFromIDList({bytes}), std::nullopt) << bytes.size() << " bytes";
  }
}

TEST_F(LinksOfOthers, MakingAndReadingManyKeepsNoHandle) {
  ASSERT_TRUE(Files.Write(Target, "x"));
  const auto once = [&] {
    const auto made = Links.CreateLinkObject();
    ASSERT_NE(made, nullptr);
    ASSERT_TRUE(made->SetPath(Target));
    ASSERT_TRUE(made->Save(File));
    const auto read = Links.CreateLinkObject();
    ASSERT_NE(read, nullptr);
    ASSERT_TRUE(read->Load(File));
    ASSERT_EQ(read->GetPath(), Target);
    ASSERT_TRUE(read->GetIDList().has_value());
  };
  once();
  const auto handles = [] {
    DWORD count = 0;
    GetProcessHandleCount(GetCurrentProcess(), &count);
    return count;
  };
  const DWORD before = handles();
  for (int i = 0; i < 50; ++i) once();
  EXPECT_LE(handles(), before + 2);
}

}  // namespace
}  // namespace corvelle

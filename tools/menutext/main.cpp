#include <cstdio>
#include <cstring>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "base/CodePage.h"
#include "menutext/MenuText.h"

namespace {

using corvelle::PackMenu;
using corvelle::UnpackMenu;
using corvelle::Windows1252;

constexpr int kUsage = 2;
constexpr int kFailed = 1;

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

std::optional<std::string> ReadFile(const char* path) {
  const File file(std::fopen(path, "rb"));
  if (!file) return std::nullopt;
  std::string bytes;
  char buffer[65536];
  for (;;) {
    const std::size_t count = std::fread(buffer, 1, sizeof buffer, file.get());
    bytes.append(buffer, count);
    if (count < sizeof buffer) break;
  }
  if (std::ferror(file.get()) != 0) return std::nullopt;
  return bytes;
}

bool WriteFile(const char* path, std::string_view bytes) {
  File file(std::fopen(path, "wb"));
  if (!file) return false;
  const bool written = std::fwrite(bytes.data(), 1, bytes.size(), file.get()) == bytes.size();
  return std::fclose(file.release()) == 0 && written;
}

int Fail(const char* path, const char* what) {
  std::fprintf(stderr, "menutext: %s: %s\n", path, what);
  return kFailed;
}

int Pack(const char* from, const char* to) {
  const std::optional<std::string> text = ReadFile(from);
  if (!text) return Fail(from, "cannot be read");
  const auto bytes = PackMenu(*text, Windows1252());
  if (!bytes) {
    std::fprintf(stderr, "menutext: %s:%d: %s\n", from, bytes.Error().Line,
                 bytes.Error().What.c_str());
    return kFailed;
  }
  return WriteFile(to, *bytes) ? 0 : Fail(to, "cannot be written");
}

int Unpack(const char* from, const char* to) {
  const std::optional<std::string> bytes = ReadFile(from);
  if (!bytes) return Fail(from, "cannot be read");
  const std::string text = UnpackMenu(*bytes, Windows1252());
  if (to != nullptr) return WriteFile(to, text) ? 0 : Fail(to, "cannot be written");
  const bool written = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
  return written && std::fflush(stdout) == 0 ? 0 : Fail("(output)", "cannot be written");
}

}  // namespace

int main(int argc, char** argv) {
  if (argc == 4 && std::strcmp(argv[1], "pack") == 0) return Pack(argv[2], argv[3]);
  if ((argc == 3 || argc == 4) && std::strcmp(argv[1], "unpack") == 0) {
    return Unpack(argv[2], argc == 4 ? argv[3] : nullptr);
  }
  std::fputs(
      "menutext pack TEXT MENU      writes a menu file from readable text\n"
      "menutext unpack MENU [TEXT]  writes the readable text of a menu file\n",
      stderr);
  return kUsage;
}

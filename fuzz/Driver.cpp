#include <algorithm>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <utility>
#include <vector>

// Runs a fuzz target on the files that the command line names (of a folder: on all in it), and then
// on inputs made from a seed: bytes of several kinds, and changed copies of those files. The same
// seed and the same files give the same inputs on every machine.
//
//   records_fuzz --count 20000 [--seed N] [files and folders...]
//
// Each made input has the seed "first seed + its number", so that a failing one runs again alone
// with --seed S --count 1 and the same files. A file that fails is named.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

using Bytes = std::vector<std::uint8_t>;

// The input that runs, as told to whoever has to find it again.
std::string currentInput;
bool inputRuns = false;

void SayWhichInput() {
  if (!inputRuns) return;
  std::fprintf(stderr, "the failing input: %s\n", currentInput.c_str());
}

void Run(const Bytes& bytes, std::string name) {
  currentInput = std::move(name);
  inputRuns = true;
  LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
  inputRuns = false;
}

// A broken property ends in abort, a sanitizer's finding in an exit; the message goes with both.
extern "C" void OnAbort(int signal) {
  SayWhichInput();
  std::signal(signal, SIG_DFL);
  std::raise(signal);
}

class Maker {
 public:
  explicit Maker(unsigned long seed) : random_(seed) {}

  Bytes Make(const std::vector<Bytes>& corpus) {
    if (!corpus.empty() && Below(2) == 0) return Changed(corpus[Below(corpus.size())]);
    return Changed(Fresh());
  }

 private:
  std::size_t Below(std::size_t bound) { return static_cast<std::size_t>(random_() % bound); }

  std::uint8_t AnyByte() { return static_cast<std::uint8_t>(random_() & 0xFFU); }

  std::uint8_t TextByte() {
    static constexpr char kPool[] = "aX/hH*\\ .?0159\n\r=&-_{}\xC3\xA4\xD0\x96\xE2\x82\xAC\xFF";
    return static_cast<std::uint8_t>(kPool[Below(sizeof kPool)]);
  }

  // Few lengths are as telling as those around whole records.
  std::size_t Length() {
    switch (Below(4)) {
      case 0:
        return Below(64);
      case 1:
        return 570 * Below(6);
      case 2:
        return 570 * (1 + Below(5)) + Below(3) - 1;
      default:
        return Below(4000);
    }
  }

  Bytes Fresh() {
    Bytes bytes(Length());
    const std::size_t kind = Below(4);
    for (std::uint8_t& byte : bytes) {
      const bool blank = kind == 2 && Below(4) != 0;
      byte = blank ? ' ' : (kind == 0 ? AnyByte() : TextByte());
    }
    return bytes;
  }

  Bytes Changed(Bytes bytes) {
    for (std::size_t n = Below(6); n > 0; --n) {
      const std::size_t at = bytes.empty() ? 0 : Below(bytes.size());
      switch (Below(4)) {
        case 0:
          if (!bytes.empty()) bytes[at] = AnyByte();
          break;
        case 1:
          bytes.insert(bytes.begin() + static_cast<std::ptrdiff_t>(at), TextByte());
          break;
        case 2:
          if (!bytes.empty()) bytes.erase(bytes.begin() + static_cast<std::ptrdiff_t>(at));
          break;
        default:
          bytes.resize(at);
          break;
      }
    }
    return bytes;
  }

  std::mt19937_64 random_;
};

struct File {
  std::string path;
  Bytes bytes;
};

/// Adds the file at the path, or every file of the folder there in the order of their names. False
/// if there is none.
bool AddFiles(const std::string& path, std::vector<File>& files) {
  std::error_code error;
  if (!std::filesystem::is_directory(path, error)) {
    std::ifstream file(path, std::ios::binary);
    if (!file) return false;
    files.push_back({path, Bytes(std::istreambuf_iterator<char>(file), {})});
    return true;
  }
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(path, error)) {
    names.push_back(entry.path().string());
  }
  std::sort(names.begin(), names.end());
  return !names.empty() && std::all_of(names.begin(), names.end(), [&files](const auto& name) {
    return AddFiles(name, files);
  });
}

int Usage(const char* program) {
  std::fprintf(stderr, "%s [--count N] [--seed N] [files and folders...]\n", program);
  return 2;
}

}  // namespace

int main(int argc, char** argv) {
  unsigned long count = 10000;
  unsigned long firstSeed = 1;
  std::vector<File> files;
  for (int i = 1; i < argc; ++i) {
    const bool isCount = std::strcmp(argv[i], "--count") == 0;
    const bool isSeed = std::strcmp(argv[i], "--seed") == 0;
    if (isCount || isSeed) {
      if (++i >= argc) return Usage(argv[0]);
      (isCount ? count : firstSeed) = std::strtoul(argv[i], nullptr, 10);
      continue;
    }
    if (!AddFiles(argv[i], files)) {
      std::fprintf(stderr, "%s: no such file, or a folder without files\n", argv[i]);
      return Usage(argv[0]);
    }
  }

  std::atexit(SayWhichInput);
  std::signal(SIGABRT, OnAbort);
  std::vector<Bytes> corpus;
  for (const File& file : files) {
    Run(file.bytes, file.path);
    corpus.push_back(file.bytes);
  }
  for (unsigned long n = 0; n < count; ++n) {
    const unsigned long seed = firstSeed + n;
    Run(Maker(seed).Make(corpus),
        "--seed " + std::to_string(seed) + " --count 1" + (files.empty() ? "" : " and all files"));
  }
  std::printf("%lu inputs from seed %lu and %zu files: all properties hold\n", count, firstSeed,
              corpus.size());
  return 0;
}

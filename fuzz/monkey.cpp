// A monkey at the desk: random gestures, keys, files that change underneath and windows that come
// and go, against one whole program on the simulated desktop. After each of them the program must
// be at rest and in order. Every life of a run has a seed of its own, so that one that fails can be
// lived again by itself:
//   corvelle_monkey --events 200000 --seed 1
//   corvelle_monkey --life 17 --seed 1 --tell

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "MonkeyLife.h"

namespace {

struct Wish {
  int Events = 200'000;
  int EventsPerLife = 1000;
  std::uint64_t Seed = 1;
  int OnlyLife = -1;
  bool Tell = false;
};

Wish ReadWish(int argc, char** argv) {
  Wish wish;
  for (int i = 1; i < argc; ++i) {
    const auto number = [&] { return i + 1 < argc ? std::strtoull(argv[++i], nullptr, 10) : 0; };
    if (std::strcmp(argv[i], "--events") == 0) {
      wish.Events = static_cast<int>(number());
    } else if (std::strcmp(argv[i], "--seed") == 0) {
      wish.Seed = number();
    } else if (std::strcmp(argv[i], "--life") == 0) {
      wish.OnlyLife = static_cast<int>(number());
    } else if (std::strcmp(argv[i], "--tell") == 0) {
      wish.Tell = true;
    } else {
      std::fprintf(stderr, "usage: %s [--events N] [--seed N] [--life N] [--tell]\n", argv[0]);
      std::exit(2);
    }
  }
  return wish;
}

}  // namespace

int main(int argc, char** argv) {
  const Wish wish = ReadWish(argc, argv);
  int lived = 0;
  for (int life = 0; lived < wish.Events; ++life) {
    const int events = std::min(wish.EventsPerLife, wish.Events - lived);
    lived += events;
    if (wish.OnlyLife >= 0 && life != wish.OnlyLife) continue;
    corvelle::fuzz::MonkeyLife monkey(wish.Seed * 1'000'003 + static_cast<std::uint64_t>(life),
                                      wish.Tell);
    if (const std::string wrong = monkey.Live(events); !wrong.empty()) {
      std::fprintf(stderr, "seed %llu, life %d: %s\n", static_cast<unsigned long long>(wish.Seed),
                   life, wrong.c_str());
      return 1;
    }
  }
  std::printf("%d events\n", lived);
  return 0;
}

// A monkey at the desk: random gestures, keys, files that change underneath and windows that come
// and go, against one whole program on the simulated desktop. After each of them the program must
// be at rest and in order. Every life of a run has a seed of its own, so that one that fails can be
// lived again by itself:
//   corvelle_monkey --events 200000 --seed 1
//   corvelle_monkey --life 17 --seed 1 --tell
// With --seeds N it goes on with the next seeds, N in all, and makes so many events with each. With
// --own N the seed is one of this run's own: N more than CORVELLE_MONKEY_SEED says, than the clock
// without it. The seed is always told.
// With --slow there are places that answer late, not at all, or only again after a while.
// With --go-on a life that fails is told in one line and the next one begins.
// With --tally it says what it came to; a long run that came past something that it should know
// fails. Several shorter runs are judged together: each leaves its tally with --keep FILE, and
// --judge FILE... adds them up.

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <string>
#include <vector>

#include "MonkeyLife.h"

namespace {

struct Wish {
  int Events = 200'000;
  int EventsPerLife = 1000;
  std::uint64_t Seed = 1;
  int Seeds = 1;
  int OnlyLife = -1;
  bool Tell = false;
  bool Tally = false;
  bool GoOn = false;
  bool SlowPlaces = false;
  std::string Keep;                // where the tally goes
  std::vector<std::string> Judge;  // tallies of earlier runs
};

constexpr int kLongRun = 200'000;  // events in which the monkey comes to everything

/// A seed that is another one at each run, unless the environment says which.
std::uint64_t OwnSeed(std::uint64_t number) {
  const char* const given = std::getenv("CORVELLE_MONKEY_SEED");
  if (given != nullptr && *given != '\0') return std::strtoull(given, nullptr, 10) + number;
  return static_cast<std::uint64_t>(std::time(nullptr)) + number;
}

Wish ReadWish(int argc, char** argv) {
  Wish wish;
  for (int i = 1; i < argc; ++i) {
    const auto number = [&] { return i + 1 < argc ? std::strtoull(argv[++i], nullptr, 10) : 0; };
    if (std::strcmp(argv[i], "--events") == 0) {
      wish.Events = static_cast<int>(number());
    } else if (std::strcmp(argv[i], "--seed") == 0) {
      wish.Seed = number();
    } else if (std::strcmp(argv[i], "--own") == 0) {
      wish.Seed = OwnSeed(number());
    } else if (std::strcmp(argv[i], "--seeds") == 0) {
      wish.Seeds = static_cast<int>(number());
    } else if (std::strcmp(argv[i], "--life") == 0) {
      wish.OnlyLife = static_cast<int>(number());
    } else if (std::strcmp(argv[i], "--tell") == 0) {
      wish.Tell = true;
    } else if (std::strcmp(argv[i], "--tally") == 0) {
      wish.Tally = true;
    } else if (std::strcmp(argv[i], "--slow") == 0) {
      wish.SlowPlaces = true;
    } else if (std::strcmp(argv[i], "--go-on") == 0) {
      wish.GoOn = true;
    } else if (std::strcmp(argv[i], "--keep") == 0 && i + 1 < argc) {
      wish.Keep = argv[++i];
    } else if (std::strcmp(argv[i], "--judge") == 0 && i + 1 < argc) {
      wish.Judge.assign(argv + i + 1, argv + argc);
      break;
    } else {
      std::fprintf(stderr,
                   "usage: %s [--events N] [--seed N | --own N] [--seeds N] [--life N] [--tell] "
                   "[--tally] [--go-on] [--slow] [--keep FILE] | --judge FILE...\n",
                   argv[0]);
      std::exit(2);
    }
  }
  return wish;
}

/// 0 if nothing is missing; says what is.
int Judge(const corvelle::fuzz::MonkeyTally& tally) {
  const std::vector<std::string> missing = tally.Missing();
  for (const std::string& deed : missing)
    std::fprintf(stderr, "the monkey did not come to this: %s\n", deed.c_str());
  return missing.empty() ? 0 : 1;
}

int JudgeKept(const std::vector<std::string>& files) {
  corvelle::fuzz::MonkeyTally tally;
  for (const std::string& file : files) {
    if (tally.Add(file)) continue;
    std::fprintf(stderr, "%s: no tally\n", file.c_str());
    return 1;
  }
  return Judge(tally);
}

/// What the lives of one seed came to.
struct Lived {
  int Events = 0;
  int Failed = 0;
};

/// Lives the lives of a seed; to the first that fails unless told to go on.
Lived LiveSeed(const Wish& wish, std::uint64_t seed, corvelle::fuzz::MonkeyTally& tally) {
  Lived lived;
  for (int life = 0; lived.Events < wish.Events; ++life) {
    if (wish.OnlyLife >= 0 && life < wish.OnlyLife) continue;
    const int events = std::min(wish.EventsPerLife, wish.Events - lived.Events);
    corvelle::fuzz::MonkeyLife monkey(seed * 1'000'003 + static_cast<std::uint64_t>(life),
                                      wish.Tell, tally, wish.SlowPlaces);
    if (const std::string wrong = monkey.Live(events); !wrong.empty()) {
      const std::string told = wish.GoOn ? wrong.substr(0, wrong.find('\n')) : wrong;
      std::fprintf(stderr, "seed %llu, life %d: %s\n", static_cast<unsigned long long>(seed), life,
                   told.c_str());
      ++lived.Failed;
      if (!wish.GoOn) break;
    }
    lived.Events += std::max(monkey.Lived(), 1);
    if (wish.OnlyLife >= 0) break;
  }
  std::printf("seed %llu: %d events\n", static_cast<unsigned long long>(seed), lived.Events);
  std::fflush(stdout);
  return lived;
}

}  // namespace

int main(int argc, char** argv) {
  const Wish wish = ReadWish(argc, argv);
  if (!wish.Judge.empty()) return JudgeKept(wish.Judge);
  corvelle::fuzz::MonkeyTally tally;
  long long events = 0;
  int failed = 0;
  for (int i = 0; i < wish.Seeds; ++i) {
    const Lived lived = LiveSeed(wish, wish.Seed + static_cast<std::uint64_t>(i), tally);
    events += lived.Events;
    failed += lived.Failed;
    if (failed > 0 && !wish.GoOn) return 1;
  }
  if (wish.Tally) tally.Print();
  std::printf("%lld events, %d lives failed\n", events, failed);
  if (!wish.Keep.empty() && !tally.Keep(wish.Keep)) {
    std::fprintf(stderr, "%s: not written\n", wish.Keep.c_str());
    return 1;
  }
  if (failed > 0) return 1;
  return events < kLongRun ? 0 : Judge(tally);
}

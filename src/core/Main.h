#pragma once

namespace corvelle {

class Program;

/// The entry routine: decides whether the program may run, finds its folder, loads the flags, does
/// the first-run and upgrade work and brings up the windows. True when the program runs now and its
/// events want to be served; false when it has ended.
[[nodiscard]] bool Main(Program& program);

}  // namespace corvelle

#pragma once

namespace corvelle {

class Program;

/// Looks which icon the Recycle Bin has now, full or empty: what the registry says, the current
/// user's part of it first, and what the shell draws, which knows the bin's state by itself. When
/// it is another one than at the last look, notes it in Program::Icons and
/// RecycleIconIndex and sets Program::Icons; else changes nothing.
void CheckRecycleIcon(Program& program);

}  // namespace corvelle

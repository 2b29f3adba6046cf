#pragma once

namespace corvelle {

class Program;

/// Looks which icon the Recycle Bin has now, full or empty. When it is another one than at the last
/// look, notes it in Program::RecycleIconPath and sets Program::RecycleIconChanged; else changes
/// nothing.
void CheckRecycleIcon(Program& program);

}  // namespace corvelle

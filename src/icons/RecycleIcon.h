#pragma once

namespace corvelle {

class Registry;
class ShellFolders;
struct IconState;

/// Looks which icon the Recycle Bin has now, full or empty: what the registry says, the current
/// user's part of it first, and what the shell draws, which knows the bin's state by itself. When
/// it is another one than at the last look, notes it in `icons` and sets
/// IconState::RecycleIconChanged; else changes nothing.
void CheckRecycleIcon(const Registry& keys, ShellFolders& folders, IconState& icons);

}  // namespace corvelle

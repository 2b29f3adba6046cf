#pragma once

namespace corvelle {

class CodePage;
class DesktopWindows;
class FileSystem;
class Input;
class Registry;
class ShellExec;
class ShellIcons;
class SystemInfo;

/// All that the program asks of the system besides its own windows, handed down from the entry
/// point. Whoever makes it owns the services and outlives the program.
struct Platform {
  FileSystem& Files;
  const CodePage& Ansi;
  Registry& Keys;
  ShellExec& Shell;
  ShellIcons& Icons;
  Input& Pointer;
  DesktopWindows& Desktop;
  SystemInfo& System;
};

}  // namespace corvelle

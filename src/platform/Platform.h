#pragma once

namespace corvelle {

class AppBars;
class Clipboard;
class CodePage;
class CrashReports;
class DdeClient;
class DesktopWindows;
class FileAssociations;
class FileSystem;
class Input;
class KeySynthesis;
class Lookups;
class Registry;
class ShellExec;
class ShellFiles;
class ShellFolders;
class ShellIcons;
class ShellLinks;
class Starter;
class SystemInfo;
class TrayIcons;

/// All that the program asks of the system besides its own windows, handed down from the entry
/// point. Whoever makes it owns the services and outlives the program.
struct Platform {
  FileSystem& Files;
  const CodePage& Ansi;
  Registry& Keys;
  ShellExec& Shell;
  ShellIcons& Icons;
  ShellLinks& Links;
  ShellFiles& FileOps;
  Input& Pointer;
  KeySynthesis& Keyboard;
  DesktopWindows& Desktop;
  DdeClient& Dde;
  FileAssociations& Associations;
  SystemInfo& System;
  ShellFolders& Folders;
  AppBars& Bars;
  TrayIcons& Tray;
  Lookups& SlowAnswers;
  Starter& Starts;
  Clipboard& Copies;
  CrashReports& Crashes;
};

}  // namespace corvelle

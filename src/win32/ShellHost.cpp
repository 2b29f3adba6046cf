#include "win32/ShellHost.h"

#include <ole2.h>

#include <string>

#include "forms/LookupLedger.h"
#include "forms/LookupWire.h"
#include "win32/ErrorMode.h"
#include "win32/Win32Files.h"
#include "win32/Win32ShellFolders.h"
#include "win32/Win32ShellIcons.h"
#include "win32/Win32ShellLinks.h"
#include "win32/Win32SystemInfo.h"

namespace corvelle::win32 {

namespace {

constexpr DWORD kPieceBytes = 64 * 1024;

bool WriteAll(HANDLE pipe, const std::string& bytes) {
  for (std::size_t at = 0; at < bytes.size();) {
    DWORD written = 0;
    if (WriteFile(pipe, bytes.data() + at, static_cast<DWORD>(bytes.size() - at), &written,
                  nullptr) == 0 ||
        written == 0) {
      return false;
    }
    at += written;
  }
  return true;
}

/// Windows that extensions of the shell have made in this thread get their messages.
void RunMessages() {
  MSG message{};
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0) DispatchMessageW(&message);
}

std::string AnswerTo(const forms::LookupServices& services, const forms::WireQuestion& question) {
  LookupAnswer answer = forms::AnswerLookup(services, question.Question);
  answer.Id = question.Id;
  std::string bytes = forms::FormatWireAnswer(answer);
  if (!bytes.empty()) return bytes;
  return forms::FormatWireAnswer({.Id = question.Id, .End = LookupEnd::Failed});
}

}  // namespace

void ServeShellQuestions() {
  const HANDLE in = GetStdHandle(STD_INPUT_HANDLE);
  const HANDLE out = GetStdHandle(STD_OUTPUT_HANDLE);
  if (GetFileType(in) != FILE_TYPE_PIPE || GetFileType(out) != FILE_TYPE_PIPE) return;
  SuppressCriticalErrorBoxes();
  SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX | SEM_NOOPENFILEERRORBOX);
  if (FAILED(OleInitialize(nullptr))) return;
  Win32Files files;
  Win32ShellLinks links;
  const Win32SystemInfo system;
  Win32ShellIcons icons;
  Win32ShellFolders folders;
  const forms::LookupServices services{files, links, system, icons, folders};
  forms::WireReader reader;
  std::string piece(kPieceBytes, '\0');
  for (;;) {
    while (const auto content = reader.Next()) {
      const auto question = forms::ParseWireQuestion(*content);
      if (!question || !WriteAll(out, AnswerTo(services, *question))) return;
      RunMessages();
    }
    DWORD read = 0;
    if (reader.IsBroken() || ReadFile(in, piece.data(), kPieceBytes, &read, nullptr) == 0 ||
        read == 0) {
      return;
    }
    reader.Append(std::string_view(piece).substr(0, read));
  }
}

}  // namespace corvelle::win32

#include <gtest/gtest.h>
#include <windows.h>

#include <shellapi.h>

#include <optional>

#include "Diversion.h"
#include "win32/ErrorMode.h"
#include "win32/Win32ShellExec.h"

// What the system is asked in the moment of a start, and what becomes of its answer. The calls of
// this program lead to routines of the test meanwhile.

extern "C" {
extern void* g_shellExecuteExW CORVELLE_IMPORT(ShellExecuteExW, 4);
extern void* g_createProcessW CORVELLE_IMPORT(CreateProcessW, 40);
}

namespace corvelle {
namespace {

struct Asked {
  UINT ProcessMode = 0;
  DWORD ThreadMode = 0;
};

std::optional<Asked> g_asked;
DWORD g_answer = 0;

BOOL Answer() {
  g_asked = Asked{GetErrorMode(), GetThreadErrorMode()};
  SetLastError(g_answer);
  return FALSE;
}

BOOL WINAPI AnswerShellExecute(SHELLEXECUTEINFOW* info) {
  // What the system says there of everything it has no number for.
  info->hInstApp = reinterpret_cast<HINSTANCE>(static_cast<INT_PTR>(SE_ERR_ACCESSDENIED));
  return Answer();
}

BOOL WINAPI AnswerCreateProcess(LPCWSTR, LPWSTR, LPSECURITY_ATTRIBUTES, LPSECURITY_ATTRIBUTES, BOOL,
                                DWORD, LPVOID, LPCWSTR, LPSTARTUPINFOW, LPPROCESS_INFORMATION) {
  return Answer();
}

class DivertedStart : public testing::Test {
 protected:
  DivertedStart() { g_asked.reset(); }

  static RunError Run(DWORD answer) {
    g_answer = answer;
    win32::Win32ShellExec shell;
    const auto started = shell.Run("C:\\there.exe");
    return started ? RunError::Other : started.Error();
  }
  static OpenError Open(DWORD answer) {
    g_answer = answer;
    win32::Win32ShellExec shell;
    const auto opened = shell.Open("C:\\there.exe", std::nullopt, std::nullopt);
    return opened ? OpenError::Other : opened.Error();
  }

 private:
  Diversion shell_{g_shellExecuteExW, reinterpret_cast<void*>(&AnswerShellExecute)};
  Diversion process_{g_createProcessW, reinterpret_cast<void*>(&AnswerCreateProcess)};
};

TEST_F(DivertedStart, ARefusalIsToldFromAMissingRight) {
  EXPECT_EQ(Open(ERROR_CANCELLED), OpenError::Cancelled);
  EXPECT_EQ(Open(ERROR_ACCESS_DENIED), OpenError::AccessDenied);
  EXPECT_EQ(Open(ERROR_FILE_NOT_FOUND), OpenError::Other);
  EXPECT_EQ(Run(740), RunError::NeedsElevation);
  EXPECT_EQ(Run(ERROR_ACCESS_DENIED), RunError::AccessDenied);
}

TEST_F(DivertedStart, WhatIsStartedHasTheErrorModeOfTheProgramsOwnStart) {
  const UINT start = GetErrorMode();
  win32::SuppressCriticalErrorBoxes();
  // As another part of the process may change it later.
  const UINT later = start ^ SEM_NOOPENFILEERRORBOX;
  SetErrorMode(later);
  for (const bool opens : {true, false}) {
    g_asked.reset();
    if (opens) {
      static_cast<void>(Open(ERROR_FILE_NOT_FOUND));
    } else {
      static_cast<void>(Run(ERROR_FILE_NOT_FOUND));
    }
    ASSERT_TRUE(g_asked.has_value()) << opens;
    EXPECT_EQ(g_asked->ProcessMode, start) << opens;
    // What this thread does for the start raises no box all the same.
    EXPECT_NE(g_asked->ThreadMode & SEM_FAILCRITICALERRORS, 0U) << opens;
    EXPECT_EQ(GetErrorMode(), later) << opens;
  }
  SetErrorMode(start);
  SetThreadErrorMode(0, nullptr);
}

}  // namespace
}  // namespace corvelle

#include <gtest/gtest.h>
#include <windows.h>

#include "Diversion.h"
#include "TempFolder.h"
#include "win32/Win32Files.h"

// How often the disk is waited for.

extern "C" {
extern void* g_flushFileBuffers CORVELLE_IMPORT(FlushFileBuffers, 4);
}

namespace corvelle {
namespace {

int g_flushes = 0;

BOOL WINAPI CountFlush(HANDLE) {
  ++g_flushes;
  return TRUE;
}

TEST(FlushOnWindows, OneOfManyFilesIsNotWaitedFor) {
  const Diversion diversion(g_flushFileBuffers, reinterpret_cast<void*>(&CountFlush));
  g_flushes = 0;
  const TempFolder folder;
  win32::Win32Files files;
  for (const char* name : {"a.ico", "b.ico", "c.ico"})
    ASSERT_TRUE(files.ReplaceUnflushed(folder.Path() + name, "icon"));
  EXPECT_EQ(g_flushes, 0);
  ASSERT_TRUE(files.Flush(folder.Path() + "c.ico"));
  EXPECT_EQ(g_flushes, 1);
  ASSERT_TRUE(files.Replace(folder.Path() + "a.ico", "other"));
  EXPECT_EQ(g_flushes, 2);
}

}  // namespace
}  // namespace corvelle

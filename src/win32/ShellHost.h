#pragma once

namespace corvelle::win32 {

/// The other process: answers the questions that come over its standard input on its standard
/// output (see forms/LookupWire.h), one after the other, until the pipe ends or brings what is no
/// question. Does nothing without a pipe. What crashes here takes no window with it.
void ServeShellQuestions();

}  // namespace corvelle::win32

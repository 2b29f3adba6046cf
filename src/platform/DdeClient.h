#pragma once

#include <string_view>

namespace corvelle {

/// How a command to another program ended.
enum class DdeOutcome {
  Done,      // the program took it
  NoServer,  // no program offers that service and topic
  Refused,   // the program said no, or that it is busy
  NoAnswer,  // the program did not say anything in time, or went away
};

/// Conversations with other programs that offer a service (Dynamic Data Exchange), this program
/// being the client.
class DdeClient {
 public:
  virtual ~DdeClient() = default;

  /// Looks for a program with that service and topic, gives it one command and ends the
  /// conversation. Case of the names does not count. Comes back within some seconds, however the
  /// other program behaves; none of the program's own posted events runs meanwhile.
  [[nodiscard]] virtual DdeOutcome Execute(std::string_view service, std::string_view topic,
                                           std::string_view command) = 0;
};

}  // namespace corvelle

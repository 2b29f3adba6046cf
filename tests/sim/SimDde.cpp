#include "sim/SimDde.h"

#include "base/Text.h"

namespace corvelle::sim {

namespace {

std::pair<std::string, std::string> KeyOf(std::string_view service, std::string_view topic) {
  return {UpperCase(service), UpperCase(topic)};
}

}  // namespace

void SimDde::AddServer(std::string_view service, std::string_view topic, DdeOutcome answer) {
  servers_[KeyOf(service, topic)] = answer;
}

void SimDde::RemoveServer(std::string_view service, std::string_view topic) {
  servers_.erase(KeyOf(service, topic));
}

DdeOutcome SimDde::Execute(std::string_view service, std::string_view topic,
                           std::string_view command) {
  TellCall("Execute", service);
  ++tries_;
  // A name that is none stands for any program, which would be the wrong one.
  if (service.empty() || topic.empty()) return DdeOutcome::NoServer;
  const auto server = servers_.find(KeyOf(service, topic));
  if (server == servers_.end()) return DdeOutcome::NoServer;
  told_.push_back({std::string(service), std::string(topic), std::string(command)});
  return server->second;
}

}  // namespace corvelle::sim

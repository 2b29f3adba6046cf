#pragma once

#include <functional>
#include <string>

namespace corvelle::sim {

/// Says that something went wrong that no test foresaw: a message box without an answer, an event
/// loop without an end, a thing that a double lacks. It makes the running test fail, unless another
/// handler is set.
void Complain(const std::string& what);

/// Who hears the complaints from now on; an empty one restores the failure of the test. Returns the
/// one before.
using ComplaintHandler = std::function<void(const std::string&)>;
ComplaintHandler SetComplaintHandler(ComplaintHandler handler);

}  // namespace corvelle::sim

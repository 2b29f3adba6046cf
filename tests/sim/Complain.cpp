#include "sim/Complain.h"

#include <gtest/gtest.h>

#include <utility>

namespace corvelle::sim {

namespace {

ComplaintHandler& Handler() {
  static ComplaintHandler handler;
  return handler;
}

}  // namespace

void Complain(const std::string& what) {
  if (Handler()) {
    Handler()(what);
  } else {
    ADD_FAILURE() << what;
  }
}

ComplaintHandler SetComplaintHandler(ComplaintHandler handler) {
  return std::exchange(Handler(), std::move(handler));
}

}  // namespace corvelle::sim

#pragma once

#include "win32/UniqueHandle.h"

namespace corvelle::win32 {

template <class Interface>
struct ComTraits : NullHandleTraits<Interface*> {
  static void Close(Interface* object) noexcept { object->Release(); }
};

/// Owns one reference to an object of COM and releases it at its end.
template <class Interface>
class ComPointer : public UniqueHandle<ComTraits<Interface>> {
 public:
  using UniqueHandle<ComTraits<Interface>>::UniqueHandle;

  Interface* operator->() const noexcept { return this->Get(); }

  /// Where a call of Windows stores a new reference, as it wants it.
  void** ReceiveVoid() noexcept { return reinterpret_cast<void**>(this->Receive()); }
};

}  // namespace corvelle::win32

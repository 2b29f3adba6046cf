#include "win32/ShellHelper.h"

#include <array>
#include <cstddef>
#include <utility>
#include <vector>

#include "win32/Wide.h"

namespace corvelle::win32 {

namespace {

constexpr DWORD kPipeBytes = 64 * 1024;

/// Both ends of a pipe; the child's end can be inherited.
struct Pipe {
  UniqueKernel Ours;
  UniqueKernel Child;

  bool Make(bool childReads) {
    SECURITY_ATTRIBUTES inherited{sizeof(inherited), nullptr, TRUE};
    UniqueKernel read;
    UniqueKernel write;
    if (CreatePipe(read.Receive(), write.Receive(), &inherited, kPipeBytes) == 0) return false;
    Child = std::move(childReads ? read : write);
    Ours = std::move(childReads ? write : read);
    return SetHandleInformation(Ours.Get(), HANDLE_FLAG_INHERIT, 0) != 0;
  }
};

UniqueKernel JobThatDiesWithUs() {
  UniqueKernel job(CreateJobObjectW(nullptr, nullptr));
  JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits{};
  limits.BasicLimitInformation.LimitFlags =
      JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE | JOB_OBJECT_LIMIT_DIE_ON_UNHANDLED_EXCEPTION;
  if (job)
    SetInformationJobObject(job.Get(), JobObjectExtendedLimitInformation, &limits, sizeof(limits));
  return job;
}

/// What a new process inherits: these handles and no others.
class InheritedHandles {
 public:
  InheritedHandles(HANDLE first, HANDLE second) : handles_{first, second} {
    SIZE_T size = 0;
    InitializeProcThreadAttributeList(nullptr, 1, 0, &size);
    room_.resize(size);
    auto* const list = reinterpret_cast<LPPROC_THREAD_ATTRIBUTE_LIST>(room_.data());
    if (InitializeProcThreadAttributeList(list, 1, 0, &size) == 0) return;
    list_ = list;
    good_ = UpdateProcThreadAttribute(list_, 0, PROC_THREAD_ATTRIBUTE_HANDLE_LIST, handles_.data(),
                                      sizeof(handles_), nullptr, nullptr) != 0;
  }
  InheritedHandles(const InheritedHandles&) = delete;
  InheritedHandles& operator=(const InheritedHandles&) = delete;
  ~InheritedHandles() {
    if (list_ != nullptr) DeleteProcThreadAttributeList(list_);
  }

  [[nodiscard]] LPPROC_THREAD_ATTRIBUTE_LIST Get() const { return good_ ? list_ : nullptr; }

 private:
  std::array<HANDLE, 2> handles_;
  std::vector<std::byte> room_;
  LPPROC_THREAD_ATTRIBUTE_LIST list_ = nullptr;
  bool good_ = false;
};

}  // namespace

bool ShellHelper::Start() {
  const std::scoped_lock lock(mutex_);
  if (process_) return true;
  Pipe questions;
  Pipe answers;
  UniqueKernel job = JobThatDiesWithUs();
  if (!job || !questions.Make(true) || !answers.Make(false)) return false;
  const InheritedHandles inherited(questions.Child.Get(), answers.Child.Get());
  if (inherited.Get() == nullptr) return false;
  STARTUPINFOEXW startup{};
  startup.StartupInfo.cb = sizeof(startup);
  // No busy pointer: the user has not started this program.
  startup.StartupInfo.dwFlags = STARTF_USESTDHANDLES | STARTF_FORCEOFFFEEDBACK;
  startup.StartupInfo.hStdInput = questions.Child.Get();
  startup.StartupInfo.hStdOutput = answers.Child.Get();
  startup.lpAttributeList = inherited.Get();
  const std::wstring program = Wide(program_);
  std::wstring line = L"\"" + program + L"\"";
  PROCESS_INFORMATION made{};
  if (CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, TRUE,
                     CREATE_SUSPENDED | CREATE_NO_WINDOW | EXTENDED_STARTUPINFO_PRESENT, nullptr,
                     nullptr, &startup.StartupInfo, &made) == 0) {
    return false;
  }
  process_.Reset(made.hProcess);
  const UniqueKernel thread(made.hThread);
  // Before its first statement: nothing that it starts is outside of the job.
  if (AssignProcessToJobObject(job.Get(), process_.Get()) == 0 ||
      ResumeThread(thread.Get()) == static_cast<DWORD>(-1)) {
    TerminateProcess(process_.Get(), 1);
    process_.Reset();
    return false;
  }
  job_ = std::move(job);
  to_ = std::move(questions.Ours);
  from_ = std::move(answers.Ours);
  reader_ = {};
  return true;
}

std::optional<LookupAnswer> ShellHelper::Ask(LookupId id, const Lookup& question) {
  const std::string message = forms::FormatWireQuestion({id, question});
  if (message.empty()) return LookupAnswer{.End = LookupEnd::Failed};
  DWORD written = 0;
  const bool sent = WriteFile(to_.Get(), message.data(), static_cast<DWORD>(message.size()),
                              &written, nullptr) != 0 &&
                    written == message.size();
  std::optional<LookupAnswer> answer;
  if (sent) answer = Receive(id);
  if (!answer) Close();
  return answer;
}

std::optional<LookupAnswer> ShellHelper::Receive(LookupId id) {
  std::string piece(kPipeBytes, '\0');
  for (;;) {
    if (const auto content = reader_.Next()) {
      auto answer = forms::ParseWireAnswer(*content);
      // What answers something else is not to be trusted with more.
      if (!answer || answer->Id != id) return std::nullopt;
      return answer;
    }
    DWORD read = 0;
    if (reader_.IsBroken() ||
        ReadFile(from_.Get(), piece.data(), kPipeBytes, &read, nullptr) == 0 || read == 0) {
      return std::nullopt;
    }
    reader_.Append(std::string_view(piece).substr(0, read));
  }
}

void ShellHelper::Kill() {
  const std::scoped_lock lock(mutex_);
  if (process_) TerminateProcess(process_.Get(), 1);
}

void ShellHelper::Close() {
  const std::scoped_lock lock(mutex_);
  if (process_) TerminateProcess(process_.Get(), 1);
  process_.Reset();
  job_.Reset();
  to_.Reset();
  from_.Reset();
}

}  // namespace corvelle::win32

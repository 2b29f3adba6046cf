#include "toolbar/strip/RefusedFiles.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "core/DroppedFiles.h"
#include "core/MessageBoxes.h"
#include "forms/Form.h"
#include "forms/WindowSystem.h"

namespace corvelle {

RefusedFiles::RefusedFiles(MessageBoxes& messages, forms::Form& window, forms::Timer& tmrRefused)
    : messages_(messages), window_(window), tmrRefused_(tmrRefused) {
  tmrRefused_.SetInterval(1);
  tmrRefused_.Tick = [this] { tmrRefused_Timer(); };
}

void RefusedFiles::Tell(std::vector<std::string> files) {
  if (files.empty()) return;
  std::move(files.begin(), files.end(), std::back_inserter(files_));
  tmrRefused_.SetEnabled(true);
}

void RefusedFiles::tmrRefused_Timer() {
  tmrRefused_.SetEnabled(false);
  const std::vector<std::string> files = std::exchange(files_, {});
  if (files.empty() || !window_.IsLoaded()) return;
  messages_.Say(window_.hWnd(), RefusedFilesText(files),
                forms::msgbox::IconInformation | forms::msgbox::OnTop);
}

}  // namespace corvelle

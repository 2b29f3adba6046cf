#pragma once

#include <string>
#include <vector>

#include "core/WindowPorts.h"
#include "forms/ComboBox.h"
#include "forms/CommandButton.h"
#include "forms/Form.h"
#include "forms/Frame.h"
#include "forms/Graphic.h"
#include "forms/PictureBox.h"
#include "search/QueryHistory.h"

namespace corvelle {

class CodePage;
class FileSystem;
class MessageBoxes;
struct ProgramPaths;

/// What the window works with. All of it outlives it.
struct NetSearchParts {
  forms::WindowSystem& Windows;
  FileSystem& Files;
  const CodePage& Ansi;
  const ProgramPaths& Paths;
  const WindowPorts& Ports;
  MessageBoxes& Messages;
  const std::string& Title;
};

/// The window in which the user types a query, picks a search engine and sends the query to the
/// browser.
class frmNetSearch final : public forms::Form, public LoadedWindow {
 public:
  explicit frmNetSearch(const NetSearchParts& with);

  /// Loads the window if need be and shows it, also from the task bar.
  void LoadWindow() override;
  void UnloadWindow() override { Unload(); }
  [[nodiscard]] bool WindowLoaded() const override { return IsLoaded(); }

  forms::Frame Frame1;
  forms::PictureBox picFrame;  // inside the frame, for what has no window of its own
  forms::Label Label1;
  forms::ComboBox cmbText;
  forms::Label Label2;
  forms::ComboBox cmbEngine;
  forms::CommandButton cmdFind;
  forms::CommandButton cmdClear;

  /// A template for each entry of cmbEngine.
  std::vector<std::string> EngineUrls;
  QueryHistory Queries;

 protected:
  void Form_Load() override;
  void Form_Unload() override;
  void Form_KeyDown(int keyCode, forms::ShiftState shift) override;

 private:
  void cmdFind_Click();
  void cmdClear_Click();

  void LayOut();
  void FetchFactoryList();
  void LoadEngines();
  void LoadHistory();
  void ShowHistory();
  [[nodiscard]] std::string PathOf(std::string_view name) const;
  /// The address of a query with the engine that is chosen; empty, and told, for a template that
  /// has no place for it.
  [[nodiscard]] std::string AddressOf(const std::string& query);

  NetSearchParts with_;
};

}  // namespace corvelle

#include "platform/FileSystemContract.h"
#include "sim/SimFiles.h"

namespace corvelle {
namespace {

class SimContractDisk final : public ContractDisk {
 public:
  SimContractDisk() { disk_.MakeFolders(Root()); }

  FileSystem& Files() override { return disk_; }
  std::string Root() override { return "C:\\Contract\\"; }
  void SetReadOnly(const std::string& path, bool readOnly) override {
    disk_.SetReadOnly(path, readOnly);
  }
  void SetHidden(const std::string& path, bool hidden) override { disk_.SetHidden(path, hidden); }
  void SetSystem(const std::string& path, bool system) override { disk_.SetSystem(path, system); }
  void HoldOpen(const std::string& path) override { disk_.HoldOpen(path); }
  void LetGo(const std::string& path) override { disk_.LetGo(path); }
  bool HasShortName(const std::string& path) override {
    disk_.GiveShortName(path, "ALETTE~1.TXT");
    return true;
  }

 private:
  sim::SimFiles disk_;
};

std::unique_ptr<ContractDisk> MakeSimDisk() { return std::make_unique<SimContractDisk>(); }

INSTANTIATE_TEST_SUITE_P(Simulated, FileSystemContract, testing::Values(MakeSimDisk));

}  // namespace
}  // namespace corvelle

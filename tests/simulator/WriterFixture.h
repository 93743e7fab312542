#pragma once

#include "contract/device/Krx10Control.h"
#include "tests/simulator/WritingFixture.h"

#include <cstddef>
#include <filesystem>
#include <functional>
#include <string>

namespace simulator {

/// A device folder that is written to by every operation that can, one after the other and round
/// and round: the last round leaves what the first one found.
class WriterFixture : public WritingFixture {
public:
    /// Connects the device of the folder and carries out one step after the other until one fails.
    /// Calls `report` before the first one and after each; false ends it.
    void WriteForEver(std::size_t step, const std::function<bool()>& report);

    const std::filesystem::path& DeviceFolder() const { return m_deviceFolder; }

protected:
    struct Step {
        const char* name;
        contract::Status (*run)(WriterFixture&);
        /// Whether the operation is many changes, one for each file, and not a single one.
        bool isManyChanges = false;
    };

    static const Step& StepAt(std::size_t index);
    static std::size_t StepCount();

    void SetUp() override;

    /// Carries out a step on the device that is connected. False when it fails.
    bool RunStep(std::size_t index) { return StepAt(index).run(*this).IsSuccess(); }

private:
    static const Step kSteps[];

    std::string PathOf(int generation, const std::string& name) const;
    contract::Status StoreFile(int generation, const std::string& name, std::int32_t destination);
    contract::Status LoadImage(int generation);
    contract::Status Prepare(contract::Medium medium);
    contract::Status SetNetwork(bool useDhcp, const std::string& description);
    std::shared_ptr<contract::IKrx10Control> Krx10Control();
};

}

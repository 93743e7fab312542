#pragma once

#include "frontend/registry/FileRegistry.h"
#include "tests/simulator/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <sys/types.h>
#include <vector>

namespace registry {

/// Runs `work` in a process of its own; the result is what it returned, negative when it was
/// stopped. Expectations inside it are lost, so it returns what is to be expected.
int RunInChild(const std::function<int()>& work);

/// Starts such a process without waiting for it.
pid_t StartChild(const std::function<int()>& work);

/// A registry in a folder of its own.
class RegistryFixture : public testing::Test {
protected:
    static constexpr const char* kKey = "SOFTWARE\\Programs\\Update";

    std::string Path() const { return (folder.Path() / "registry.json").string(); }
    /// What lies in the folder, in order.
    std::vector<std::string> FilesInFolder() const;

    void WriteFile(const std::string& text) const { folder.Write("registry.json", text); }
    std::string ReadFile() const;

    std::unique_ptr<panel::IRegistryKey> Open();
    std::unique_ptr<panel::IRegistryKey> Create();
    /// The bytes of a value of kKey as a registry of its own reads them, "(error N)" when it
    /// cannot.
    std::string Read(const std::string& name) const;

    simulator::CTemporaryFolder folder;
    std::vector<std::string> traceLines;
    CFileRegistry registry{Path(), [this](const std::string& line) { traceLines.push_back(line); }};
};

}

#pragma once

#include "contract/device/FileInfo.h"
#include "simulator/Device.h"

#include <utility>

namespace simulator {

/// One file of a listing. Copies nothing: a listing of a million files makes a million of these.
class CFileInfo final : public contract::IFileInfo {
public:
    /// `file` is one of `files`, which this object keeps alive.
    CFileInfo(std::shared_ptr<const StoredFiles> files, const StoredFile& file)
        : m_files(std::move(files)), m_file(file) {}

    contract::Status GetName(std::string& name) override { return Give(m_file.name, name); }
    contract::Status GetType(std::int32_t& type) override { return Give(m_file.type, type); }
    contract::Status GetId(std::int32_t& id) override { return Give(m_file.id, id); }
    contract::Status GetVersion(std::string& version) override {
        return Give(m_file.version, version);
    }
    contract::Status GetSize(std::int32_t& sizeBytes) override {
        return Give(m_file.sizeBytes, sizeBytes);
    }
    contract::Status GetLocation(std::int32_t& location) override {
        return Give(m_file.location, location);
    }
    contract::Status GetGeneration(std::uint32_t& generation) override {
        return Give(m_file.generation, generation);
    }

private:
    const std::shared_ptr<const StoredFiles> m_files;
    const StoredFile& m_file;
};

}

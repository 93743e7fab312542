#include "simulator/folder/StoredFileReader.h"

#include "simulator/folder/DescriptionNames.h"
#include "simulator/folder/MessageText.h"
#include "simulator/folder/SystemError.h"
#include "simulator/folder/SystemPath.h"

#include <cerrno>
#include <cstdint>
#include <fstream>
#include <limits>
#include <map>
#include <string>
#include <system_error>
#include <utility>

namespace simulator {

namespace {

using Path = std::filesystem::path;

/// Remembers who was the first with each key.
template <class Key>
class CFirstUse {
public:
    /// Null when `key` is new, else the quoted name of its first user.
    const std::string* Claim(const Key& key, std::string name) {
        const auto [entry, isNew] = m_names.emplace(key, std::move(name));
        return isNew ? nullptr : &entry->second;
    }

private:
    std::map<Key, std::string> m_names;
};

std::int32_t ReadSize(const Path& path, const auto& refuse) {
    std::error_code error;
    const auto status = std::filesystem::status(path, error);
    if (status.type() == std::filesystem::file_type::not_found) {
        refuse("is missing");
    }
    if (error) {
        refuse("cannot be read: " + MessageOf(error));
    }
    if (!std::filesystem::is_regular_file(status)) {
        refuse("is not a plain file");
    }
    const auto size = std::filesystem::file_size(path, error);
    if (error) {
        refuse("cannot be read: " + MessageOf(error));
    }
    if (!std::ifstream(path, std::ios::binary)) {
        refuse("cannot be read: " + MessageOf({errno, std::generic_category()}));
    }
    if (size > static_cast<std::uintmax_t>(std::numeric_limits<std::int32_t>::max())) {
        refuse("is larger than 2147483647 bytes");
    }
    return static_cast<std::int32_t>(size);
}

std::string ReadContent(const CDescriptionNode& node, const std::string& fileName) {
    if (const auto content = node.OptionalMember("content")) {
        auto name = content->Text();
        if (!IsPlainFileName(name)) {
            content->Refuse("must be a plain file name");
        }
        return name;
    }
    if (!IsPlainFileName(fileName)) {
        node.Member("name").Refuse("is no plain file name, so that \"content\" must give one");
    }
    return fileName;
}

StoredFile ReadStoredFile(const CDescriptionNode& node) {
    node.ExpectKeys({"name", "type", "id", "version", "location", "generation", "content"});
    StoredFile file;
    file.name = node.Member("name").Text();
    file.type = node.Member("type").NameOrNumber<std::int32_t>(kFileTypes);
    file.id = node.Member("id").WholeNumberOf<std::int32_t>();
    file.version = node.OptionalText("version");
    file.location = node.Member("location").NameOrNumber<std::int32_t>(kLocations);
    if (const auto generation = node.OptionalMember("generation")) {
        file.generation = generation->NameOrNumber<std::uint32_t>(kGenerations);
    }
    file.content = ReadContent(node, file.name);
    return file;
}

}

std::vector<StoredFile> ReadStoredFiles(const CDescriptionNode& list, const Path& folder) {
    std::vector<StoredFile> files;
    CFirstUse<std::pair<std::int32_t, std::int32_t>> addresses;
    CFirstUse<std::string> contents;
    list.ForEachElement([&](const CDescriptionNode& node) {
        auto file = ReadStoredFile(node);
        const std::pair address(file.type, AddressingPart(file.id));
        if (const auto* first = addresses.Claim(address, node.QuotedName())) {
            node.Refuse("has the type and the identifier (low 16 bits) of " + *first);
        }
        if (const auto* first = contents.Claim(FileNameKey(file.content), node.QuotedName())) {
            node.Refuse("has the content of " + *first);
        }
        file.sizeBytes = ReadSize(
            folder / kContentFolderName / PathOf(file.content), [&](const std::string& reason) {
                node.Refuse("is stored in " + QuoteForMessage("files/" + file.content) +
                            ", which " + reason);
            });
        files.push_back(std::move(file));
    });
    return files;
}

}

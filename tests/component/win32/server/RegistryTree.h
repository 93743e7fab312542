#pragma once

#include <string>
#include <vector>

/// The system's registry below HKEY_CLASSES_ROOT, as anybody sees it. Keys are paths with
/// backslashes.
namespace component {

/// A key with all that is below it, one line for each key and value, sorted: "Key", "Key = default
/// text", "Key:Name = text". Another type than a text is named. Empty when the key is not there.
std::vector<std::string> DumpTree(const std::wstring& key);

bool HasKey(const std::wstring& key);
/// Makes the key where it is missing. `name` may be empty, for the default value.
void WriteText(const std::wstring& key, const std::wstring& name, const std::wstring& text);
/// Takes the key with all that is below it; one that is not there is no failure.
void RemoveTree(const std::wstring& key);

/// A key below which nothing lasting can be made, since it lasts only until the system ends. It
/// must not be there before.
void MakeRefusingKey(const std::wstring& key);

/// A key that leads nowhere, so that it can be neither opened nor made. It must not be there
/// before.
class CDeadKey {
public:
    explicit CDeadKey(const std::wstring& key);
    ~CDeadKey();
    CDeadKey(const CDeadKey&) = delete;
    CDeadKey& operator=(const CDeadKey&) = delete;

private:
    void* m_key = nullptr;
};

}

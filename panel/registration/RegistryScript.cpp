#include "panel/registration/RegistryScript.h"

#include <algorithm>
#include <utility>

namespace panel {

namespace {

constexpr std::string_view kBlanks = " \t\r\n";
constexpr char kApostrophe = '\'';

struct Word {
    std::string text;
    bool isQuoted = false;

    // A name between apostrophes is never a word of the language.
    bool Is(std::string_view word) const { return !isQuoted && text == word; }
};

class CScriptReader {
public:
    explicit CScriptReader(std::string_view rest) : m_rest(rest) { Advance(); }

    bool IsAtEnd() const { return !m_word; }

    bool ReadRoot(ScriptKey& root) { return ReadName(root.name) && ReadBlock(root) && IsAtEnd(); }

private:
    bool Is(std::string_view word) const { return m_word && m_word->Is(word); }

    bool Skip(std::string_view word) {
        const bool isThere = Is(word);
        if (isThere) {
            Advance();
        }
        return isThere;
    }

    bool ReadName(std::string& name) {
        if (!m_word || Is("{") || Is("}") || Is("=")) {
            return false;
        }
        // NOLINTNEXTLINE(clang-analyzer-cplusplus.Move): each word is another one
        name = std::move(m_word->text);
        Advance();
        return true;
    }

    bool ReadText(std::string& text) { return Skip("s") && ReadName(text); }

    bool ReadBlock(ScriptKey& parent) {
        if (!Skip("{")) {
            return false;
        }
        while (!Skip("}")) {
            if (!(Skip("val") ? ReadValue(parent) : ReadKey(parent))) {
                return false;
            }
        }
        return true;
    }

    bool ReadValue(ScriptKey& parent) {
        ScriptValue value;
        const bool isRead = ReadName(value.name) && Skip("=") && ReadText(value.text);
        parent.values.push_back(std::move(value));
        return isRead;
    }

    bool ReadKey(ScriptKey& parent) {
        ScriptKey key;
        key.isKept = Skip("NoRemove");
        key.isRenewed = !key.isKept && Skip("ForceRemove");
        bool isRead = ReadName(key.name);
        if (isRead && Skip("=")) {
            isRead = ReadText(key.text.emplace());
        }
        if (isRead && Is("{")) {
            isRead = ReadBlock(key);
        }
        parent.keys.push_back(std::move(key));
        return isRead;
    }

    void Advance() {
        m_word.reset();
        const std::size_t start = m_rest.find_first_not_of(kBlanks);
        if (start == std::string_view::npos) {
            return;
        }
        m_rest.remove_prefix(start);
        m_rest.front() == kApostrophe ? TakeQuoted() : TakePlain();
    }

    void TakePlain() {
        const std::size_t length = std::min(m_rest.find_first_of(kBlanks), m_rest.size());
        m_word = Word{std::string(m_rest.substr(0, length))};
        m_rest.remove_prefix(length);
    }

    // Leaves no word when the apostrophe at the end is missing.
    void TakeQuoted() {
        std::string text;
        for (std::size_t i = 1; i < m_rest.size(); ++i) {
            const bool isApostrophe = m_rest[i] == kApostrophe;
            if (isApostrophe && (i + 1 == m_rest.size() || m_rest[i + 1] != kApostrophe)) {
                m_rest.remove_prefix(i + 1);
                m_word = Word{std::move(text), true};
                return;
            }
            i += isApostrophe;
            text += m_rest[i];
        }
        m_rest = {};
    }

    std::string_view m_rest;
    std::optional<Word> m_word;
};

}

std::optional<ScriptKey> ParseRegistryScript(std::string_view script) {
    ScriptKey root;
    CScriptReader reader(script);
    if (!reader.ReadRoot(root)) {
        return std::nullopt;
    }
    return root;
}

}

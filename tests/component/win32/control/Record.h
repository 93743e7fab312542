#pragma once

#include "component/win32/com/ComApi.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace controltests {

/// What a container has been called, in order, and how it answers.
class CRecord {
public:
    /// Notes a call, runs what is to happen inside it, and says what it returns.
    HRESULT Note(const std::string& call, HRESULT usual) {
        m_calls.push_back(call);
        // A copy, since it may be replaced from inside.
        if (const auto act = m_inside) {
            act(call);
        }
        const auto answer = m_answers.find(call);
        return answer == m_answers.end() ? m_answer.value_or(usual) : answer->second;
    }

    void Answer(const std::string& call, HRESULT result) { m_answers[call] = result; }
    void AnswerAll(HRESULT result) { m_answer = result; }
    void AnswerAsUsual() {
        m_answers.clear();
        m_answer.reset();
    }
    /// `act` runs inside each call.
    void Inside(std::function<void(const std::string& call)> act) { m_inside = std::move(act); }

    /// The calls since the start or the last look.
    std::vector<std::string> TakeCalls() { return std::exchange(m_calls, {}); }

private:
    std::vector<std::string> m_calls;
    std::map<std::string, HRESULT> m_answers;
    std::optional<HRESULT> m_answer;
    std::function<void(const std::string& call)> m_inside;
};

/// The count of references of an object that its owner ends.
class CReferences {
public:
    ULONG Add() { return ++m_count; }
    ULONG Take() { return --m_count; }
    /// Without the owner's own.
    ULONG Outstanding() const { return m_count - 1; }

private:
    ULONG m_count = 1;
};

}

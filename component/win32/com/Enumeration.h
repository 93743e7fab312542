#pragma once

#include "component/win32/com/ComCall.h"
#include "component/win32/com/ComObject.h"

#include <cstddef>
#include <utility>
#include <vector>

namespace component {

/// An enumerator of COM over a few items, which it holds. `Item` is what it delivers, and `Held`
/// what it keeps of it, with Item Held::Copy() const for a copy that is the caller's.
template <class Interface, class Item, class Held>
class CEnumeration final : public Interface {
public:
    explicit CEnumeration(std::vector<Held> items, std::size_t next = 0)
        : m_items(std::move(items)), m_next(next) {}

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID identifier, void** result) override {
        return AnswerQuery<Interface>(this, identifier, result);
    }
    HRESULT STDMETHODCALLTYPE Next(ULONG wanted, Item* items, ULONG* fetched) override {
        if (!items || (!fetched && wanted != 1)) {
            return E_POINTER;
        }
        ULONG count = 0;
        for (; count < wanted && m_next < m_items.size(); ++count, ++m_next) {
            items[count] = m_items[m_next].Copy();
        }
        if (fetched) {
            *fetched = count;
        }
        return count == wanted ? S_OK : S_FALSE;
    }
    HRESULT STDMETHODCALLTYPE Skip(ULONG count) override {
        const std::size_t left = m_items.size() - m_next;
        m_next += count < left ? count : left;
        return count <= left ? S_OK : S_FALSE;
    }
    HRESULT STDMETHODCALLTYPE Reset() override {
        m_next = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Clone(Interface** copy) override {
        if (!copy) {
            return E_POINTER;
        }
        *copy = nullptr;
        return Guarded(__uuidof(Interface), [&] {
            *copy = new CEnumeration(m_items, m_next);
            return S_OK;
        });
    }

private:
    const std::vector<Held> m_items;
    std::size_t m_next;

    KRX8_COUNTED_REFERENCES(CEnumeration)
};

}

#pragma once

namespace win32 {

/// Counts one more while it lives.
class CCounted {
public:
    explicit CCounted(int& count) : m_count(count) { ++m_count; }
    ~CCounted() { --m_count; }
    CCounted(const CCounted&) = delete;
    CCounted& operator=(const CCounted&) = delete;

private:
    int& m_count;
};

}

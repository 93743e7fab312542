#include "frontend/common/TextArena.h"

#include <algorithm>
#include <utility>

namespace common {

namespace {
constexpr std::size_t kChunkBytes = 64U << 10;
}

void CTextArena::Clear() {
    if (!m_chunks.empty()) {
        Enter(0);
    }
}

std::size_t CTextArena::UsedBytes() const {
    if (m_chunks.empty()) {
        return 0;
    }
    auto used = static_cast<std::size_t>(m_end - m_chunks[m_current].bytes.get());
    for (std::size_t chunk = 0; chunk < m_current; ++chunk) {
        used += m_chunks[chunk].used;
    }
    return used;
}

// The open block comes along, since it is to stay in one piece.
void CTextArena::ContinueInNextChunk(std::size_t bytes) {
    const char* const block = m_block;
    const auto blockBytes = static_cast<std::size_t>(m_end - m_block);
    std::size_t next = 0;
    if (!m_chunks.empty()) {
        m_chunks[m_current].used =
            static_cast<std::size_t>(m_block - m_chunks[m_current].bytes.get());
        next = m_current + 1;
    }
    const std::size_t needed = blockBytes + bytes;
    if (next == m_chunks.size() || m_chunks[next].capacity < needed) {
        // A long block asks for twice its size, so that it is not moved again and again.
        const std::size_t capacity = std::max(kChunkBytes, 2 * needed);
        Chunk chunk{std::make_unique_for_overwrite<char[]>(capacity), capacity};
        m_chunks.insert(m_chunks.begin() + static_cast<std::ptrdiff_t>(next), std::move(chunk));
    }
    Enter(next);
    m_end = std::copy_n(block, blockBytes, m_end);
}

void CTextArena::Enter(std::size_t chunk) {
    m_current = chunk;
    m_block = m_end = m_chunks[chunk].bytes.get();
    m_limit = m_end + m_chunks[chunk].capacity;
}

}

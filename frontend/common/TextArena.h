#pragma once

#include <cstddef>
#include <memory>
#include <vector>

namespace common {

/// Blocks of bytes, one behind the other in large chunks that never move: growing costs neither a
/// copy of what is there nor an allocation a block. The block opened last can grow.
class CTextArena {
public:
    /// Ends the block that is open and opens an empty one behind it.
    void OpenBlock() { m_block = m_end; }
    /// Empties the open block.
    void EmptyBlock() { m_end = m_block; }
    /// Whether the open block can grow that much without moving.
    bool HasRoom(std::size_t bytes) const {
        return static_cast<std::size_t>(m_limit - m_end) >= bytes;
    }
    /// Makes the open block longer and returns where to write. May move the open block.
    char* Extend(std::size_t bytes) {
        if (!HasRoom(bytes)) {
            ContinueInNextChunk(bytes);
        }
        char* const place = m_end;
        m_end += bytes;
        return place;
    }
    const char* Block() const { return m_block; }

    /// Forgets all blocks and keeps the chunks for new ones.
    void Clear();
    /// Bytes in all blocks.
    std::size_t UsedBytes() const;

private:
    struct Chunk {
        std::unique_ptr<char[]> bytes;
        std::size_t capacity = 0;
        std::size_t used = 0; // of a chunk that is full
    };

    void ContinueInNextChunk(std::size_t bytes);
    void Enter(std::size_t chunk);

    std::vector<Chunk> m_chunks;
    std::size_t m_current = 0;
    // In the current chunk; null while there is none.
    char* m_block = nullptr;
    char* m_end = nullptr;
    char* m_limit = nullptr;
};

}

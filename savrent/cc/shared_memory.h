#ifndef SAVRENT_CC_SHARED_MEMORY_H
#define SAVRENT_CC_SHARED_MEMORY_H

#include <cstddef>

namespace savrent::cc
{
/**
 * Named blocks of memory that the processes of one machine share.
 *
 * The process that finds no block of a name makes it, filled with zero, and takes the name away again; others map the
 * same block. The list of the names of this process has no lock: one thread at a time.
 */
class shared_memory
{
public:
    /// What the operating system takes, without a leading '/'.
    static constexpr std::size_t max_name_length = 253;

    /**
     * Maps the block `name`.
     *
     * A name that this process has mapped before and a name that is too long are software errors; what the operating
     * system refuses is a line.
     *
     * @param size  bytes; an existing block that is smaller grows.
     * @return the block, which stays until destroy_all_created_memory(); null on failure.
     */
    [[nodiscard]] static void* create(unsigned long size, const char* name);

    /// Unmaps all blocks of this process, and removes the names of those that it made.
    static void destroy_all_created_memory();
};
} // namespace savrent::cc

#endif

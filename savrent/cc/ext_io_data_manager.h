#ifndef SAVRENT_CC_EXT_IO_DATA_MANAGER_H
#define SAVRENT_CC_EXT_IO_DATA_MANAGER_H

#include <atomic>
#include <memory>

namespace savrent::cc
{
/// The shared block through which programs beside the control software pass inputs and outputs of their own.
class ext_io_data_manager
{
public:
    /// One page. What stands in it is agreed between those programs.
    static constexpr unsigned long block_size = 4096;

    static std::shared_ptr<ext_io_data_manager> get_instance();

    /// Maps the block. @return false when it is mapped already or cannot be had. One thread at a time.
    bool init(const char* name);

    /// Forgets the block, ahead of shared_memory::destroy_all_created_memory().
    void terminate() { data_.store(nullptr, std::memory_order_relaxed); }

    /// The block of `block_size` bytes, or null. Any thread.
    [[nodiscard]] unsigned char* get_data() const { return data_.load(std::memory_order_relaxed); }

private:
    std::atomic<unsigned char*> data_ = nullptr;
};
} // namespace savrent::cc

#endif

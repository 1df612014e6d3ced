#include "savrent/cc/ext_io_data_manager.h"

#include "savrent/cc/shared_memory.h"
#include "savrent/cc/singleton.h"

namespace savrent::cc
{
std::shared_ptr<ext_io_data_manager> ext_io_data_manager::get_instance()
{
    static singleton<ext_io_data_manager> instance{"ext_io_data_manager"};
    return instance.get();
}

bool ext_io_data_manager::init(const char* name)
{
    if (get_data() != nullptr)
        return false;
    data_.store(static_cast<unsigned char*>(shared_memory::create(block_size, name)), std::memory_order_relaxed);
    return get_data() != nullptr;
}
} // namespace savrent::cc

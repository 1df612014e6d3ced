#include "savrent/cc/shared_data_manager.h"

#include "savrent/cc/ext_io_data_manager.h"
#include "savrent/cc/os_util.h"
#include "savrent/cc/shared_memory.h"
#include "savrent/cc/singleton.h"
#include "savrent/cc/sw_err.h"

namespace savrent::cc
{
std::shared_ptr<shared_data_manager> shared_data_manager::get_instance()
{
    static singleton<shared_data_manager> instance{"shared_data_manager"};
    return instance.get();
}

bool shared_data_manager::init(const char* name)
{
    if (data_.load(std::memory_order_relaxed) != nullptr && data_c_.load(std::memory_order_relaxed) != nullptr)
        return false;
    if (os_util::is_tcp_transfer_protocol())
    {
        tcp_data_.init(name);
        data_.store(tcp_data_.data(), std::memory_order_relaxed);
        data_c_.store(tcp_data_.data_c(), std::memory_order_relaxed);
        ext_io_data_manager::get_instance()->init("EXT_IO");
        return true;
    }
    auto* block = static_cast<protocol::shared_data_t*>(shared_memory::create(sizeof(protocol::shared_data_t), name));
    data_.store(block, std::memory_order_relaxed);
    data_c_.store(block, std::memory_order_relaxed);
    return block != nullptr;
}

void shared_data_manager::terminate()
{
    data_.store(nullptr, std::memory_order_relaxed);
    data_c_.store(nullptr, std::memory_order_relaxed);
    tcp_data_.terminate();
    ext_io_data_manager::get_instance()->terminate();
    shared_memory::destroy_all_created_memory();
}

protocol::shared_data_t* shared_data_manager::get_data()
{
    protocol::shared_data_t* data = data_.load(std::memory_order_relaxed);
    if (data == nullptr)
        report_null_once();
    return data;
}

const protocol::shared_data_t* shared_data_manager::get_data_c()
{
    const protocol::shared_data_t* data = data_c_.load(std::memory_order_relaxed);
    if (data == nullptr)
        report_null_once();
    return data;
}

void shared_data_manager::report_null_once()
{
    // The flag stands before the report, whose own look at the system data comes through here again.
    if (!null_is_reported_.exchange(true, std::memory_order_relaxed))
        err::sw_err::handle("shared data is nullptr\n", "shared_data_manager", __LINE__);
}

bool init_shared_data(const char* name)
{
    return shared_data_manager::get_instance()->init(name);
}

void terminate_shared_data()
{
    shared_data_manager::get_instance()->terminate();
}

const protocol::shared_data_t* get_shared_data_c()
{
    return shared_data_manager::get_instance()->get_data_c();
}

system_data* get_system_data()
{
    return reinterpret_cast<system_data*>(shared_data_manager::get_instance()->get_data());
}

void set_shared_data_fw_run()
{
    shared_data_manager::get_instance()->tcp_data().set_fw_run();
}

void set_shared_data_write_tcp_client(tcp_client* client)
{
    shared_data_manager::get_instance()->tcp_data().set_write_tcp_client(client);
}

void set_shared_data_read_tcp_client(tcp_client* client)
{
    shared_data_manager::get_instance()->tcp_data().set_read_tcp_client(client);
}
} // namespace savrent::cc

#include "savrent/cc/shared_memory.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

#include <boost/interprocess/exceptions.hpp>
#include <boost/interprocess/mapped_region.hpp>
#include <boost/interprocess/shared_memory_object.hpp>

#include "savrent/cc/debug_print.h"
#include "savrent/cc/immortal.h"
#include "savrent/cc/sw_err.h"

namespace savrent::cc
{
namespace
{
namespace ipc = boost::interprocess;

struct created_memory
{
    std::string name;
    bool is_made_here;
    ipc::mapped_region region;
};

/// Never destroyed: threads may still read the blocks while the process ends.
immortal<std::vector<created_memory>> g_created;

bool duplication_check(const char* name)
{
    return std::any_of(g_created->begin(), g_created->end(),
                       [name](const created_memory& memory) { return memory.name == name; });
}

/// @return the object, and whether this call made it.
std::pair<ipc::shared_memory_object, bool> make_or_open(const char* name)
{
    try
    {
        return {ipc::shared_memory_object(ipc::create_only, name, ipc::read_write), true};
    }
    catch (const ipc::interprocess_exception& failure)
    {
        if (failure.get_error_code() != ipc::already_exists_error)
            throw;
    }
    return {ipc::shared_memory_object(ipc::open_only, name, ipc::read_write), false};
}

ipc::mapped_region mapped(ipc::shared_memory_object& object, unsigned long size)
{
    ipc::offset_t present = 0;
    if (!object.get_size(present) || present < static_cast<ipc::offset_t>(size))
        object.truncate(static_cast<ipc::offset_t>(size));
    return {object, ipc::read_write, 0, size};
}
} // namespace

void* shared_memory::create(unsigned long size, const char* name)
{
    if (name == nullptr)
        name = ""; // which the operating system refuses
    if (std::strlen(name) > max_name_length)
    {
        err::sw_err::handle("string length is too long", "shared_memory", __LINE__);
        return nullptr;
    }
    if (duplication_check(name))
    {
        err::sw_err::handle("duplication_check has found duplicated name", "shared_memory", __LINE__);
        return nullptr;
    }
    bool is_made_here = false;
    try
    {
        auto [object, is_made] = make_or_open(name);
        is_made_here = is_made;
        g_created->push_back({name, is_made, mapped(object, size)});
        return g_created->back().region.get_address();
    }
    catch (const std::exception& failure)
    {
        QORIN_DEBUG_PRINT(QORIN_LOG_TYPE_ERROR, "shared memory %s: %s\n", name, failure.what());
    }
    if (is_made_here)
        ipc::shared_memory_object::remove(name);
    return nullptr;
}

void shared_memory::destroy_all_created_memory()
{
    for (const created_memory& memory : *g_created)
        if (memory.is_made_here)
            ipc::shared_memory_object::remove(memory.name.c_str());
    g_created->clear();
}
} // namespace savrent::cc

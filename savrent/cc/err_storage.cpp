#include "savrent/cc/err_storage.h"

#include <memory>
#include <mutex>

#include "savrent/cc/immortal.h"

namespace savrent::cc::err
{
namespace
{
struct err_ring
{
    err_info entries[err_storage::capacity] = {};
    int write_index = 0;
    int capacity = err_storage::capacity;
    int read_index = 0;
    int count = 0;
    int last_index = err_storage::capacity - 1;
    std::int64_t overrun_value = 0;
    bool active = true;

    [[nodiscard]] int after(int index) const { return index == last_index ? 0 : index + 1; }
};

std::mutex g_mtx;
immortal<std::unique_ptr<err_ring>> g_ring;

err_ring& allocated_ring()
{
    if (*g_ring == nullptr)
        *g_ring = std::make_unique<err_ring>();
    return **g_ring;
}
} // namespace

void err_storage::add(const err_info& info)
{
    std::lock_guard lock(g_mtx);
    err_ring& ring = allocated_ring();
    ring.entries[ring.write_index] = info;
    ring.write_index = ring.after(ring.write_index);
    if (ring.count < ring.capacity)
        ++ring.count;
    else
        ring.read_index = ring.after(ring.read_index);
}

void err_storage::get_and_remove(err_info* out, int& count)
{
    std::lock_guard lock(g_mtx);
    err_ring& ring = allocated_ring();
    count = ring.count;
    for (int i = 0; i < count; ++i)
    {
        out[i] = ring.entries[ring.read_index];
        ring.read_index = ring.after(ring.read_index);
    }
    ring.count = 0;
}
} // namespace savrent::cc::err

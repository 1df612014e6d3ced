#include "savrent/cc/internal_log_proc.h"

#include "savrent/cc/singleton.h"

namespace savrent::cc
{
std::shared_ptr<internal_log_proc> internal_log_proc::get_instance()
{
    static singleton<internal_log_proc> instance{"internal_log_proc"};
    return instance.get();
}
} // namespace savrent::cc

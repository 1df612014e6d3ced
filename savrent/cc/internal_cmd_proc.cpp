#include "savrent/cc/internal_cmd_proc.h"

#include "savrent/cc/singleton.h"

namespace savrent::cc
{
std::shared_ptr<internal_cmd_proc> internal_cmd_proc::get_instance()
{
    static singleton<internal_cmd_proc> instance{"internal_cmd_proc"};
    return instance.get();
}
} // namespace savrent::cc

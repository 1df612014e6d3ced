#ifndef SAVRENT_CC_INTERNAL_LOG_PROC_H
#define SAVRENT_CC_INTERNAL_LOG_PROC_H

#include <chrono>
#include <memory>

#include "savrent/cc/internal_cmd_desc.h"

namespace savrent::cc::val_obj
{
/// A message line on its way to the log transport.
struct savrent_log_info
{
    std::chrono::system_clock::time_point time;
    char text[512];
};
} // namespace savrent::cc::val_obj

namespace savrent::cc
{
/// The log transport's queue. Any thread.
class internal_log_proc
{
public:
    static std::shared_ptr<internal_log_proc> get_instance();

    internal_cmd_desc<val_obj::savrent_log_info>& sender() { return sender_; }

private:
    internal_cmd_desc<val_obj::savrent_log_info> sender_;
};
} // namespace savrent::cc

#endif

#ifndef SAVRENT_CC_INTERNAL_CMD_PROC_H
#define SAVRENT_CC_INTERNAL_CMD_PROC_H

#include <memory>

#include "protocol/rpc_record.h"
#include "savrent/cc/internal_cmd_desc.h"

namespace savrent::cc::val_obj
{
/// A command on its way from a program to the control software.
struct api_to_fw_cmd
{
    protocol::request_record request;
};
} // namespace savrent::cc::val_obj

namespace savrent::cc
{
/// The queue of commands between the processes. Any thread.
class internal_cmd_proc
{
public:
    static std::shared_ptr<internal_cmd_proc> get_instance();

    internal_cmd_desc<val_obj::api_to_fw_cmd>& commands() { return commands_; }

private:
    internal_cmd_desc<val_obj::api_to_fw_cmd> commands_;
};
} // namespace savrent::cc

#endif

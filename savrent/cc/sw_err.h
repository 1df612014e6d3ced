#ifndef SAVRENT_CC_SW_ERR_H
#define SAVRENT_CC_SW_ERR_H

namespace savrent::cc
{
struct system_data;
}

namespace savrent::cc::err
{
/// Reports faults of the software itself. A fault is reported and the caller goes on.
class sw_err
{
public:
    /// From now on faults are also kept in err_storage.
    static void init();

    /// From now on a fault is also noted in the system data that `source` finds; it may find none.
    static void set_system_data_source(system_data* (*source)());

    /// Reports `message`, raised at `line` of the source named `file`. Any thread.
    static void handle(const char* message, const char* file, int line);
};
} // namespace savrent::cc::err

#endif

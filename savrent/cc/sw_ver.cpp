#include "savrent/cc/sw_ver.h"

#include <string>

#include "savrent/cc/immortal.h"

namespace savrent_static::cc
{
const char* sw_ver::get()
{
    static savrent::cc::immortal<std::string> g_str_api_ver(std::string("QORIN") + "." + "v3.008.000.004_U2");
    return g_str_api_ver->c_str();
}
} // namespace savrent_static::cc

// What the examples do not use of an installed library: its mathematics, that its exceptions are caught on this side,
// and the layer in C++ as a part of another tree.
#include <cstdlib>
#include <stdexcept>

#include <qorin/qorin.hpp>
#include <savrent/cc/math/vector3.h>

int main()
{
    unsetenv("SAVRENT_V3");
    unsigned int cbox_id = 0;
    try
    {
        qorin_rpc_system_cbox_connect(nullptr, "127.0.0.1", &cbox_id); // no path to a configuration
        return 1;
    }
    catch (const std::logic_error&)
    {
        const auto asked = qorin::cbox({7}).in_control();
        const bool refused = !asked && asked.error().code() == QORIN_API_RESULT_ERROR_CBOX_ID_INVALID;
        return refused && savrent::cc::math::vector3(3, 4, 0).length() == 5.0 ? 0 : 2;
    }
}

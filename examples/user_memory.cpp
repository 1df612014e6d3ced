// Keeps values of each type in the control box's user memory and reads them back.
//
//   user_memory ADDRESS CONFIG
//
// Shows what comes back of each: of a text nothing that is one, of a wide integer its low 32 bits.

#include <cstdio>
#include <cstring>

#include "session.h"

namespace
{
using example::is_ok;

/// Names and texts stand in 128 bytes, as that much is read.
struct text_128
{
    explicit text_128(const char* from) { std::strncpy(text, from, sizeof text - 1); }
    char text[128] = {};
};

bool keep(unsigned int cbox_id)
{
    const text_128 none("");
    const text_128 recipe("oak");
    return is_ok("parts", qorin_rpc_set_user_memory(cbox_id, text_128("parts").text, QORIN_USER_DATA_TYPE_INT, -12,
                                                    none.text, 0, 0.0, 0)) &&
           is_ok("recipe", qorin_rpc_set_user_memory(cbox_id, text_128("recipe").text, QORIN_USER_DATA_TYPE_STRING, 0,
                                                     recipe.text, 0, 0.0, 0)) &&
           is_ok("ready", qorin_rpc_set_user_memory(cbox_id, text_128("ready").text, QORIN_USER_DATA_TYPE_BOOL, 0,
                                                    none.text, 1, 0.0, 0)) &&
           is_ok("scale", qorin_rpc_set_user_memory(cbox_id, text_128("scale").text, QORIN_USER_DATA_TYPE_DOUBLE, 0,
                                                    none.text, 0, 0.125, 0)) &&
           is_ok("total", qorin_rpc_set_user_memory(cbox_id, text_128("total").text, QORIN_USER_DATA_TYPE_LONGLONG, 0,
                                                    none.text, 0, 0.0, 123456));
}

bool print(unsigned int cbox_id, const char* name)
{
    // Each output in 128 bytes: they are read before they are written.
    QORIN_USER_DATA_TYPE type[32] = {};
    int number[32] = {};
    char text[128] = {};
    char flag[128] = {};
    double real[16] = {};
    long wide[16] = {};
    if (!is_ok(name, qorin_rpc_get_user_memory(cbox_id, text_128(name).text, type, number, text, flag, real, wide)))
        return false;
    switch (type[0])
    {
    case QORIN_USER_DATA_TYPE_INT:
        std::printf("%-8s integer %d\n", name, number[0]);
        break;
    case QORIN_USER_DATA_TYPE_STRING:
        std::printf("%-8s a text, which does not come back\n", name);
        break;
    case QORIN_USER_DATA_TYPE_BOOL:
        std::printf("%-8s %s\n", name, flag[0] != 0 ? "true" : "false");
        break;
    case QORIN_USER_DATA_TYPE_DOUBLE:
        std::printf("%-8s number %g\n", name, real[0]);
        break;
    case QORIN_USER_DATA_TYPE_LONGLONG:
        std::printf("%-8s wide integer %d\n", name, static_cast<int>(wide[0]));
        break;
    default:
        std::printf("%-8s no value\n", name);
    }
    return true;
}
} // namespace

int main(int argc, char** argv)
{
    example::take_arguments(argc, argv, 0, "user_memory ADDRESS CONFIG");
    unsigned int cbox_id = 0;
    if (!example::open_session(argv[1], argv[2], cbox_id))
        return 1;
    bool done = keep(cbox_id);
    for (const char* name : {"parts", "recipe", "ready", "scale", "total"})
        done = print(cbox_id, name) && done;
    done = is_ok("clear", qorin_rpc_clear_user_memory(cbox_id)) && done;

    const text_128 gone("parts");
    const QORIN_API_RESULT result = qorin_rpc_delete_user_memory(cbox_id, gone.text);
    std::printf("after the memory is cleared: %s\n", qorin_system_api_result_string_get(result));
    return example::close_session(cbox_id) && done && result == QORIN_API_RESULT_ERROR_KEY_NOT_FOUND ? 0 : 1;
}

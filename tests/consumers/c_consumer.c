// Takes control of a control box: c_consumer ADDRESS CONFIG
#include <signal.h>
#include <stdio.h>

#include <qorin/qorin_api_rpc_client.h>

int main(int argc, char** argv)
{
    if (argc != 3)
        return 2;
    signal(SIGPIPE, SIG_IGN);

    unsigned int cbox_id = 0;
    if (qorin_rpc_system_cbox_connect(argv[2], argv[1], &cbox_id) != QORIN_API_RESULT_OK)
        return 3;
    printf("%s\n", qorin_rpc_system_api_version_get(cbox_id));
    if (qorin_rpc_system_control_take(cbox_id) != QORIN_API_RESULT_OK)
        return 4;
    return qorin_rpc_system_control_release(cbox_id) == QORIN_API_RESULT_OK ? 0 : 5;
}

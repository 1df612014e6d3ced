#include "qorin/catalogue.h"

#include "rpc/wrapper.h"

using qorin_api_rpc::from_mirror;

QORIN_API_RESULT qorin_rpc_system_api_result_description_all_xml_save(unsigned int cbox_id, const char* path)
{
    return from_mirror(cbox_id, qorin_system_api_result_description_all_xml_save, path);
}

QORIN_API_RESULT qorin_rpc_system_error_event_description_all_xml_save(unsigned int cbox_id, const char* path)
{
    return from_mirror(cbox_id, qorin_system_error_event_description_all_xml_save, path);
}

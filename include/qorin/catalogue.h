/**
 * @file catalogue.h
 * Names, descriptions and advice for result codes, and for the events that report trouble.
 *
 * All functions here compute locally: they send nothing and block only to write a file. The texts belong to the
 * library; nothing is to be freed. Each catalogue is filled once, on its first use. Any thread may call.
 */
#ifndef QORIN_CATALOGUE_H
#define QORIN_CATALOGUE_H

#include "qorin/export.h"
#include "qorin/result.h"

QORIN_API_C_BEGIN

/**
 * The name of a result code.
 *
 * @param result  any number.
 * @return the enumerator's name; "Unknown Error Code : " and the number for all codes from 190000 to 199999, valid only
 *         until the next look-up by any thread; "Not Found" for every other code without a catalogue row.
 */
QORIN_API const char* qorin_system_api_result_string_get(QORIN_API_RESULT result);

/**
 * One sentence on what a result code says.
 *
 * @param result  any number.
 * @return the description; for codes without one, and for 190000 to 199999, as
 *         qorin_system_api_result_string_get() answers.
 */
QORIN_API const char* qorin_system_api_result_description_get(QORIN_API_RESULT result);

/**
 * One sentence of advice for a result code of the internal block.
 *
 * @param result  any number.
 * @return the advice for 190000 to 190004; "Not Found" for 190005 to 199999; null for every other code. The advice for
 *         those stands in the file of qorin_system_api_result_description_all_xml_save().
 */
QORIN_API const char* qorin_system_api_result_how_to_handle_get(QORIN_API_RESULT result);

/**
 * Writes the whole catalogue to an XML file: name, code, description and advice of each code, ascending.
 *
 * Texts are not escaped. A file that cannot be opened is not reported.
 *
 * @param path  taken as it stands; an existing file is overwritten, no directory is made.
 * @return QORIN_API_RESULT_OK in every case.
 */
QORIN_API QORIN_API_RESULT qorin_system_api_result_description_all_xml_save(const char* path);

/**
 * The same for a connected control box, which becomes the current one. The catalogue is the library's own and the same
 * for all control boxes. Takes no lock and writes no call line.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param path     as for qorin_system_api_result_description_all_xml_save().
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected, and then nothing
 * is written.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_system_api_result_description_all_xml_save(unsigned int cbox_id, const char* path);

/**
 * Writes the catalogue of error events to an XML file: 60 events, ascending by code, each with name, code, description,
 * the values that it carries in their order, and advice.
 *
 * The catalogue holds the error subgroups and some others that report trouble; other events have no entry. Texts
 * are not escaped. A file that cannot be opened is not reported.
 *
 * @param path  taken as it stands; an existing file is overwritten, no directory is made.
 * @return QORIN_API_RESULT_OK in every case.
 */
QORIN_API QORIN_API_RESULT qorin_system_error_event_description_all_xml_save(const char* path);

/**
 * The same for a connected control box, which becomes the current one. The catalogue is the library's own and the same
 * for all control boxes. Takes no lock and writes no call line.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param path     as for qorin_system_error_event_description_all_xml_save().
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected, and then nothing
 * is written.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_system_error_event_description_all_xml_save(unsigned int cbox_id,
                                                                                 const char* path);

QORIN_API_C_END

#endif

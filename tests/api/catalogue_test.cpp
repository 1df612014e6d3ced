#include "qorin/catalogue.h"

#include <algorithm>
#include <filesystem>
#include <functional>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/installation.h"

namespace
{
QORIN_API_RESULT code(unsigned int number)
{
    return static_cast<QORIN_API_RESULT>(number);
}

TEST(result_catalogue, looks_up_name_description_and_advice)
{
    struct expectation
    {
        unsigned int code;
        const char* name;
        const char* description;
        const char* advice;
    };
    const expectation cases[] = {
        {100000, "QORIN_API_RESULT_OK", "OK", nullptr},
        {102001, "QORIN_API_RESULT_ERROR_ROBOT_CREATION_FAILURE", "Robot createion failure.", nullptr},
        {106014, "QORIN_API_RESULT_ERROR_IO_LINK_INVALID_WP_NUMBER", "Reserved", nullptr},
        {190003, "Unknown Error Code : 190003", "Unknown Error Code : 190003",
         "Retry after system reset, Report to CS team on repeat."},
        {190000, "Unknown Error Code : 190000", "Unknown Error Code : 190000",
         "Please send the code fragement to customer servce."},
        {190005, "Unknown Error Code : 190005", "Unknown Error Code : 190005", "Not Found"},
        {199999, "Unknown Error Code : 199999", "Unknown Error Code : 199999", "Not Found"},
        {200000, "QORIN_API_RESULT_WARNING_BEGIN", "Not occurred", nullptr},
        {100009, "Not Found", "Not Found", nullptr},
        {0, "Not Found", "Not Found", nullptr},
        {189999, "Not Found", "Not Found", nullptr},
        {300000, "Not Found", "Not Found", nullptr},
    };
    for (const expectation& expected : cases)
    {
        EXPECT_STREQ(expected.name, qorin_system_api_result_string_get(code(expected.code))) << expected.code;
        EXPECT_STREQ(expected.description, qorin_system_api_result_description_get(code(expected.code)));
        EXPECT_STREQ(expected.advice, qorin_system_api_result_how_to_handle_get(code(expected.code))) << expected.code;
    }
}

TEST(result_catalogue, cuts_an_earlier_internal_text_back_on_the_next_look_up)
{
    const char* text = qorin_system_api_result_string_get(code(190003));
    EXPECT_STREQ("QORIN_API_RESULT_OK", qorin_system_api_result_string_get(code(100000)));
    EXPECT_STREQ("Unknown Error Code : ", text);
}

struct saved_catalogue
{
    QORIN_API_RESULT (*save)(const char*);
    QORIN_API_RESULT (*save_by_box)(unsigned int, const char*);
    const char* root;
    std::size_t rows;
    std::size_t lines_of_row;
    int first_code;
    int last_code;
    std::vector<std::string> texts; ///< somewhere in the file, as they stand
};

const saved_catalogue catalogues[] = {
    {qorin_system_api_result_description_all_xml_save,
     qorin_rpc_system_api_result_description_all_xml_save,
     "QorinApiError>",
     115,
     6,
     100000,
     200011,
     {"<QorinApiError>\n"
      "  <ErrInfo>\n"
      "    <Name>QORIN_API_RESULT_OK</Name>\n"
      "    <Code>100000</Code>\n"
      "    <Description>OK</Description>\n"
      "    <HowToHandle>Nothing</HowToHandle>\n"
      "  </ErrInfo>\n",
      "<Description>You don't have the control.</Description>", "<Name>QORIN_API_RESULT_ERROR_CALL_TIMEOUT</Name>"}},
    {qorin_system_error_event_description_all_xml_save,
     qorin_rpc_system_error_event_description_all_xml_save,
     "QorinErrorEvent>",
     60,
     7,
     301001,
     308006,
     {"  <ErrEventInfo>\n"
      "    <Name>QORIN_EVENT_SUBGRP_ERROR_MOTOR_SLAVE_MOTOR_OVER_SPEED</Name>\n"
      "    <Code>301018</Code>\n"
      "    <Description>Motor driver report motor over speed</Description>\n"
      "    <SendID>slave ID, error code</SendID>\n"
      "    <HowToHandle>The motor's measured velocity is higher than the motor overspeed limit set by software. "
      "</HowToHandle>\n"
      "  </ErrEventInfo>\n"}},
};

TEST(saved_catalogues, hold_all_rows_ascending_and_unescaped)
{
    const test_support::installation place;
    const std::filesystem::path file = place.directory() / "catalogue.xml";
    for (const auto& catalogue : catalogues)
    {
        test_support::write_file(file, std::string(100000, 'x'));
        EXPECT_EQ(QORIN_API_RESULT_OK, catalogue.save(file.c_str()));
        const std::string whole = test_support::read_file(file);
        for (const std::string& text : catalogue.texts)
            EXPECT_NE(std::string::npos, whole.find(text)) << text;

        std::vector<std::string> lines;
        std::istringstream text(whole);
        for (std::string line; std::getline(text, line);)
            lines.push_back(line);
        ASSERT_EQ(2 + catalogue.rows * catalogue.lines_of_row, lines.size());
        EXPECT_EQ(std::string("<") + catalogue.root, lines.front());
        EXPECT_EQ(std::string("</") + catalogue.root, lines.back());
        std::vector<int> codes;
        for (std::size_t at = 3; at < lines.size(); at += catalogue.lines_of_row)
        {
            ASSERT_TRUE(lines[at].starts_with("    <Code>")) << at;
            codes.push_back(std::stoi(lines[at].substr(10)));
        }
        EXPECT_EQ(catalogue.first_code, codes.front());
        EXPECT_EQ(catalogue.last_code, codes.back());
        EXPECT_EQ(codes.end(), std::adjacent_find(codes.begin(), codes.end(), std::greater_equal<>()));
    }
}

TEST(saved_catalogues, are_not_reported_when_they_cannot_be_written)
{
    const test_support::installation place;
    const std::filesystem::path missing = place.directory() / "missing";
    const std::string file = place.directory() / "no.xml";
    for (const auto& catalogue : catalogues)
    {
        EXPECT_EQ(QORIN_API_RESULT_OK, catalogue.save((missing / "catalogue.xml").c_str()));
        EXPECT_FALSE(std::filesystem::exists(missing));
        EXPECT_EQ(QORIN_API_RESULT_ERROR_CBOX_ID_INVALID, catalogue.save_by_box(0, file.c_str()));
        EXPECT_FALSE(std::filesystem::exists(file));
    }
}
} // namespace

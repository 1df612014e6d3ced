#include "qorin/catalogue.h"

#include <filesystem>
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

TEST(api_result, looks_up_name_description_and_advice)
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

TEST(api_result, cuts_an_earlier_internal_text_back_on_the_next_look_up)
{
    const char* text = qorin_system_api_result_string_get(code(190003));
    EXPECT_STREQ("QORIN_API_RESULT_OK", qorin_system_api_result_string_get(code(100000)));
    EXPECT_STREQ("Unknown Error Code : ", text);
}

TEST(api_result, saves_all_rows_ascending_and_unescaped)
{
    const test_support::installation place;
    const std::filesystem::path file = place.directory() / "results.xml";
    test_support::write_file(file, std::string(100000, 'x'));
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_system_api_result_description_all_xml_save(file.c_str()));

    std::vector<std::string> lines;
    std::istringstream text(test_support::read_file(file));
    for (std::string line; std::getline(text, line);)
        lines.push_back(line);
    ASSERT_EQ(2u + 115u * 6u, lines.size());
    const std::vector<std::string> first = {
        "<QorinApiError>",
        "  <ErrInfo>",
        "    <Name>QORIN_API_RESULT_OK</Name>",
        "    <Code>100000</Code>",
        "    <Description>OK</Description>",
        "    <HowToHandle>Nothing</HowToHandle>",
        "  </ErrInfo>",
    };
    EXPECT_EQ(first, std::vector<std::string>(lines.begin(), lines.begin() + 7));
    EXPECT_EQ("</QorinApiError>", lines.back());

    int previous = 0;
    int codes = 0;
    for (const std::string& line : lines)
    {
        if (!line.starts_with("    <Code>"))
            continue;
        const int number = std::stoi(line.substr(10));
        EXPECT_LT(previous, number);
        previous = number;
        ++codes;
    }
    EXPECT_EQ(115, codes);
    EXPECT_EQ(200011, previous);
    const std::string whole = test_support::read_file(file);
    EXPECT_NE(std::string::npos, whole.find("<Description>You don't have the control.</Description>"));
    EXPECT_NE(std::string::npos, whole.find("<Name>QORIN_API_RESULT_ERROR_CALL_TIMEOUT</Name>"));
}

TEST(api_result, does_not_report_a_file_that_it_cannot_write)
{
    const test_support::installation place;
    const std::filesystem::path file = place.directory() / "missing" / "results.xml";
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_system_api_result_description_all_xml_save(file.c_str()));
    EXPECT_FALSE(std::filesystem::exists(file));
    EXPECT_EQ(QORIN_API_RESULT_ERROR_CBOX_ID_INVALID,
              qorin_rpc_system_api_result_description_all_xml_save(0, (place.directory() / "no.xml").c_str()));
    EXPECT_FALSE(std::filesystem::exists(place.directory() / "no.xml"));
}
} // namespace

#include <algorithm>
#include <filesystem>
#include <functional>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "qorin/catalogue.h"
#include "tests/support/installation.h"

namespace
{
std::vector<std::string> saved_lines(const std::filesystem::path& file)
{
    std::vector<std::string> lines;
    std::istringstream text(test_support::read_file(file));
    for (std::string line; std::getline(text, line);)
        lines.push_back(line);
    return lines;
}

TEST(error_event, saves_all_rows_ascending_and_unescaped)
{
    const test_support::installation place;
    const std::filesystem::path file = place.directory() / "events.xml";
    test_support::write_file(file, std::string(100000, 'x'));
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_system_error_event_description_all_xml_save(file.c_str()));

    const std::vector<std::string> lines = saved_lines(file);
    ASSERT_EQ(2u + 60u * 7u, lines.size());
    EXPECT_EQ("<QorinErrorEvent>", lines.front());
    EXPECT_EQ("</QorinErrorEvent>", lines.back());

    const std::vector<std::string> over_speed = {
        "  <ErrEventInfo>",
        "    <Name>QORIN_EVENT_SUBGRP_ERROR_MOTOR_SLAVE_MOTOR_OVER_SPEED</Name>",
        "    <Code>301018</Code>",
        "    <Description>Motor driver report motor over speed</Description>",
        "    <SendID>slave ID, error code</SendID>",
        "    <HowToHandle>The motor's measured velocity is higher than the motor overspeed limit set by software. "
        "</HowToHandle>",
        "  </ErrEventInfo>",
    };
    EXPECT_NE(lines.end(), std::search(lines.begin(), lines.end(), over_speed.begin(), over_speed.end()));

    std::vector<int> codes;
    for (std::size_t row = 0; row < 60; ++row)
    {
        ASSERT_TRUE(lines[1 + row * 7 + 2].starts_with("    <Code>")) << row;
        codes.push_back(std::stoi(lines[1 + row * 7 + 2].substr(10)));
    }
    EXPECT_EQ(301001, codes.front());
    EXPECT_EQ(308006, codes.back());
    EXPECT_EQ(codes.end(), std::adjacent_find(codes.begin(), codes.end(), std::greater_equal<>()));
}

TEST(error_event, writes_nothing_for_an_unknown_control_box)
{
    const test_support::installation place;
    const std::filesystem::path file = place.directory() / "events.xml";
    EXPECT_EQ(QORIN_API_RESULT_ERROR_CBOX_ID_INVALID,
              qorin_rpc_system_error_event_description_all_xml_save(0, file.c_str()));
    EXPECT_FALSE(std::filesystem::exists(file));
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_system_error_event_description_all_xml_save(
                                       (place.directory() / "missing" / "events.xml").c_str()));
    EXPECT_FALSE(std::filesystem::exists(place.directory() / "missing"));
}
} // namespace

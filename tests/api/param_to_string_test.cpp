#include "api/api_call_log_param_to_string.h"

#include <cfloat>

#include <gtest/gtest.h>

#include "qorin/enumerations.h"

namespace
{
using qorin_api::param_to_string;

void some_callback(unsigned int, unsigned int, unsigned int, int, int, int, int, int) {}

class param_to_string_with_names : public testing::Test
{
protected:
    void SetUp() override { savrent::cc::qorin_init_enum_to_string(); }
};

TEST_F(param_to_string_with_names, numbers_stand_by_value)
{
    EXPECT_EQ("-5", param_to_string(static_cast<char>(-5)));
    EXPECT_EQ("-5", param_to_string(static_cast<signed char>(-5)));
    EXPECT_EQ("251", param_to_string(static_cast<unsigned char>(251)));
    EXPECT_EQ("-32768", param_to_string(static_cast<short>(-32768)));
    EXPECT_EQ("65535", param_to_string(static_cast<unsigned short>(65535)));
    EXPECT_EQ("-2147483648", param_to_string(-2147483647 - 1));
    EXPECT_EQ("4294967295", param_to_string(4294967295u));
    EXPECT_EQ("-4294967297", param_to_string(-4294967297l));
    EXPECT_EQ("-0.250000", param_to_string(-0.25));
    EXPECT_EQ(309u + 7u, param_to_string(DBL_MAX).size());
}

TEST_F(param_to_string_with_names, texts_stand_bare_and_callbacks_by_address)
{
    EXPECT_EQ("arm one", param_to_string("arm one"));
    EXPECT_EQ("nullptr", param_to_string(static_cast<const char*>(nullptr)));
    EXPECT_EQ(std::to_string(reinterpret_cast<std::uintptr_t>(&some_callback)), param_to_string(&some_callback));
    EXPECT_EQ("0", param_to_string(qorin_event_callback{nullptr}));
}

TEST_F(param_to_string_with_names, outputs_stand_as_the_variable_that_a_program_would_declare)
{
    const auto expect = []<class Value>(const char* variable, Value value)
    {
        EXPECT_EQ(variable, param_to_string(&value));
        EXPECT_EQ("nullptr", param_to_string(static_cast<Value*>(nullptr)));
    };
    expect("&char_t_var", 'c');
    expect("&int8_t_var", static_cast<signed char>(0));
    expect("&uint8_t_var", static_cast<unsigned char>(0));
    expect("&int16_t_var", short{0});
    expect("&uint16_t_var", static_cast<unsigned short>(0));
    expect("&int32_t_var", 0);
    expect("&uint32_t_var", 0u);
    expect("&int64_t_var", 0l);
    expect("&qorin_float_t_var", 0.0);
    expect("QORIN_SWITCH_OFF", QORIN_SWITCH_OFF);
}

TEST_F(param_to_string_with_names, enumerations_and_arrays_stand_by_the_name_of_their_first_number)
{
    const auto array = []<class Element>(std::initializer_list<Element> elements)
    { return param_to_string(static_cast<const Element*>(elements.begin())); };
    EXPECT_EQ("QORIN_SWITCH_ON", param_to_string(QORIN_SWITCH_ON));
    EXPECT_EQ("nullptr", param_to_string(static_cast<QORIN_SWITCH>(400102)));
    EXPECT_EQ("nullptr", param_to_string(static_cast<QORIN_REF_COORDINATE>(0)));
    EXPECT_EQ("QORIN_SWITCH_ON", array({400100.9, 1.0}));
    EXPECT_EQ("nullptr", array({90.0, 1.0}));
    EXPECT_EQ("nullptr", array({-1e300}));
    EXPECT_EQ("QORIN_SWITCH_OFF", array({400101u}));
    EXPECT_EQ("nullptr", array({static_cast<unsigned short>(1)}));
    EXPECT_EQ("nullptr", array({static_cast<unsigned char>(255)}));
}

TEST_F(param_to_string_with_names, numbered_array_variables_keep_their_two_spellings)
{
    const double real = 1.0;
    const unsigned int word = 1;
    EXPECT_EQ("p_qorin_float_t_arr_7", param_to_string(&real, 7));
    EXPECT_EQ("p_uint3_t_arr_7", param_to_string(&word, 7));
    EXPECT_EQ("nullptr", param_to_string(static_cast<const double*>(nullptr), 7));
    EXPECT_EQ("nullptr", param_to_string(static_cast<const unsigned int*>(nullptr), 7));
}

TEST(enum_to_string, knows_nothing_before_it_is_filled_and_all_numbers_after)
{
    using savrent::cc::get_string_from_enum_internal;
    EXPECT_EQ(nullptr, get_string_from_enum_internal(400100));
    savrent::cc::qorin_init_enum_to_string();
    const char* name = get_string_from_enum_internal(400100);
    savrent::cc::qorin_init_enum_to_string();
    EXPECT_EQ(name, get_string_from_enum_internal(400100));

    const std::pair<unsigned int, const char*> names[] = {
        {100000, "QORIN_API_RESULT_OK"},
        {100009, "QORIN_API_RESULT_ERROR_SYSTEM_CONTROL_SW_NOT_INIT"},
        {190003, "QORIN_API_RESULT_ERROR_CALL_TIMEOUT"},
        {301000, "QORIN_EVENT_GRP_ERROR"},
        {301001, "QORIN_EVENT_SUBGRP_ERROR_INVALID"},
        {302010, "QORIN_EVENT_SUBGRP_MOTION_COMMAND_ZIGZANG_WEAVING_SECTION_CHANGE"},
        {309005, "QORIN_EVENT_SUBGRP_MODBUS_NOTI_WELDER_ERROR"},
        {400824, "QORIN_TOOL_POWER_VOLTAGE_OPTION_24"},
        {401518, "QORIN_ROBOT_MODEL_ARM_I"},
        {403110, "QORIN_DRIVE_CONTROL_MODE_TORQUE"},
        {405600, "QORIN_SYSTEM_DATA_VALUE"},
    };
    for (const auto& [value, expected] : names)
        EXPECT_STREQ(expected, get_string_from_enum_internal(value));
    for (const unsigned int value : {0u, 100013u, 300000u, 400102u, 405601u})
        EXPECT_EQ(nullptr, get_string_from_enum_internal(value)) << value;

    int members = 0;
    for (unsigned int value = 100000; value < 406000; ++value)
        members += get_string_from_enum_internal(value) != nullptr;
    EXPECT_EQ(552, members);
}
} // namespace

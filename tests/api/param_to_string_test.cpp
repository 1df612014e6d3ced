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
    EXPECT_EQ("1.500000", param_to_string(1.5));
    EXPECT_EQ("-0.250000", param_to_string(-0.25));
    EXPECT_EQ(309u + 7u, param_to_string(DBL_MAX).size());
}

TEST_F(param_to_string_with_names, texts_stand_bare)
{
    EXPECT_EQ("arm one", param_to_string("arm one"));
    EXPECT_EQ("", param_to_string(""));
    EXPECT_EQ("nullptr", param_to_string(static_cast<const char*>(nullptr)));
}

TEST_F(param_to_string_with_names, outputs_stand_as_the_variable_that_a_program_would_declare)
{
    char c = 0;
    signed char sc = 0;
    unsigned char uc = 0;
    short s = 0;
    unsigned short us = 0;
    int i = 0;
    unsigned int ui = 0;
    long l = 0;
    double d = 0;
    EXPECT_EQ("&char_t_var", param_to_string(&c));
    EXPECT_EQ("&int8_t_var", param_to_string(&sc));
    EXPECT_EQ("&uint8_t_var", param_to_string(&uc));
    EXPECT_EQ("&int16_t_var", param_to_string(&s));
    EXPECT_EQ("&uint16_t_var", param_to_string(&us));
    EXPECT_EQ("&int32_t_var", param_to_string(&i));
    EXPECT_EQ("&uint32_t_var", param_to_string(&ui));
    EXPECT_EQ("&int64_t_var", param_to_string(&l));
    EXPECT_EQ("&qorin_float_t_var", param_to_string(&d));
    EXPECT_EQ("nullptr", param_to_string(static_cast<unsigned int*>(nullptr)));
    EXPECT_EQ("nullptr", param_to_string(static_cast<double*>(nullptr)));
}

TEST_F(param_to_string_with_names, enumerations_stand_by_name)
{
    EXPECT_EQ("QORIN_SWITCH_ON", param_to_string(QORIN_SWITCH_ON));
    EXPECT_EQ("nullptr", param_to_string(static_cast<QORIN_SWITCH>(400102)));
    EXPECT_EQ("nullptr", param_to_string(static_cast<QORIN_REF_COORDINATE>(0)));
}

TEST_F(param_to_string_with_names, arrays_and_enumeration_outputs_look_up_their_first_number)
{
    const double name[] = {400100.9, 1.0};
    const double angle[] = {90.0, 1.0};
    const double below[] = {-1e300};
    const unsigned int words[] = {400101};
    const unsigned short shorts[] = {1};
    const unsigned char bytes[] = {255};
    QORIN_SWITCH output = QORIN_SWITCH_OFF;
    EXPECT_EQ("QORIN_SWITCH_ON", param_to_string(static_cast<const double*>(name)));
    EXPECT_EQ("nullptr", param_to_string(static_cast<const double*>(angle)));
    EXPECT_EQ("nullptr", param_to_string(static_cast<const double*>(below)));
    EXPECT_EQ("QORIN_SWITCH_OFF", param_to_string(static_cast<const unsigned int*>(words)));
    EXPECT_EQ("nullptr", param_to_string(static_cast<const unsigned short*>(shorts)));
    EXPECT_EQ("nullptr", param_to_string(static_cast<const unsigned char*>(bytes)));
    EXPECT_EQ("QORIN_SWITCH_OFF", param_to_string(&output));
    EXPECT_EQ("nullptr", param_to_string(static_cast<QORIN_SWITCH*>(nullptr)));
}

TEST_F(param_to_string_with_names, callbacks_stand_by_address)
{
    EXPECT_EQ(std::to_string(reinterpret_cast<std::uintptr_t>(&some_callback)), param_to_string(&some_callback));
    EXPECT_EQ("0", param_to_string(qorin_event_callback{nullptr}));
}

TEST_F(param_to_string_with_names, numbered_array_variables_keep_their_two_spellings)
{
    const double reals[] = {1.0};
    const unsigned int words[] = {1};
    EXPECT_EQ("p_qorin_float_t_arr_7", param_to_string(reals, 7));
    EXPECT_EQ("p_uint3_t_arr_7", param_to_string(words, 7));
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

#include "simulator/scene/scene_names.h"

#include "qorin/enumerations.h"

namespace cbox_simulator
{
namespace
{
#define MEMBER(prefix, member)                                                                                         \
    {                                                                                                                  \
#member, prefix##member                                                                                        \
    }

constexpr scene_name cbox_models[] = {
    MEMBER(QORIN_CBOX_MODEL_, EMPTY),    MEMBER(QORIN_CBOX_MODEL_, EMPTY_SIM), MEMBER(QORIN_CBOX_MODEL_, 3GEN),
    MEMBER(QORIN_CBOX_MODEL_, 3GEN_AMR), MEMBER(QORIN_CBOX_MODEL_, 3GEN_SIM),
};

constexpr scene_name robot_models[] = {
    MEMBER(QORIN_ROBOT_MODEL_, USERROBOT01),
    MEMBER(QORIN_ROBOT_MODEL_, USERROBOT02),
    MEMBER(QORIN_ROBOT_MODEL_, USERCOROBOT01),
    MEMBER(QORIN_ROBOT_MODEL_, USERCOROBOT02),
    MEMBER(QORIN_ROBOT_MODEL_, TELEOPERATEDROBOT),
    MEMBER(QORIN_ROBOT_MODEL_, OHT),
    MEMBER(QORIN_ROBOT_MODEL_, AMR_A),
    MEMBER(QORIN_ROBOT_MODEL_, AMR_B),
    MEMBER(QORIN_ROBOT_MODEL_, ARM_A),
    MEMBER(QORIN_ROBOT_MODEL_, ARM_B),
    MEMBER(QORIN_ROBOT_MODEL_, ARM_C),
    MEMBER(QORIN_ROBOT_MODEL_, ARM_D),
    MEMBER(QORIN_ROBOT_MODEL_, ARM_E),
    MEMBER(QORIN_ROBOT_MODEL_, ARM_F),
    MEMBER(QORIN_ROBOT_MODEL_, ARM_G),
    MEMBER(QORIN_ROBOT_MODEL_, ARM_H),
    MEMBER(QORIN_ROBOT_MODEL_, ARM_I),
};

constexpr scene_name bounding_shapes[] = {
    MEMBER(QORIN_BOUNDING_SHAPE_, BOX),
    MEMBER(QORIN_BOUNDING_SHAPE_, SPHERE),
    MEMBER(QORIN_BOUNDING_SHAPE_, CYLINDER),
    MEMBER(QORIN_BOUNDING_SHAPE_, CONE),
};

constexpr scene_name ref_coordinates[] = {
    MEMBER(QORIN_REF_COORDINATE_, BASE),
    MEMBER(QORIN_REF_COORDINATE_, TCP),
};

constexpr scene_name redundant_inputs[] = {
    MEMBER(QORIN_CBOX_IO_REDUNDANT_IN_, EMERGENCY_STOP),
    MEMBER(QORIN_CBOX_IO_REDUNDANT_IN_, REDUCED_MODE),
    MEMBER(QORIN_CBOX_IO_REDUNDANT_IN_, SAFEGUARD_RESET),
};

constexpr scene_name redundant_outputs[] = {
    MEMBER(QORIN_CBOX_IO_REDUNDANT_OUT_, EMERGENCY_STOP),     MEMBER(QORIN_CBOX_IO_REDUNDANT_OUT_, ROBOT_MOVING),
    MEMBER(QORIN_CBOX_IO_REDUNDANT_OUT_, ROBOT_NOT_STOPPING), MEMBER(QORIN_CBOX_IO_REDUNDANT_OUT_, COLLISION_DETECTED),
    MEMBER(QORIN_CBOX_IO_REDUNDANT_OUT_, REDUCED_MODE),       MEMBER(QORIN_CBOX_IO_REDUNDANT_OUT_, NOT_REDUCED_MODE),
};

constexpr scene_name safety_inputs[] = {
    MEMBER(QORIN_SAFETY_MODULE_IO_REDUNDANT_IN_, PAUSE_RESUME),
    MEMBER(QORIN_SAFETY_MODULE_IO_REDUNDANT_IN_, ENABLE_SWITCH),
};

#undef MEMBER
} // namespace

std::span<const scene_name> cbox_model_names()
{
    return cbox_models;
}

std::span<const scene_name> robot_model_names()
{
    return robot_models;
}

std::span<const scene_name> bounding_shape_names()
{
    return bounding_shapes;
}

std::span<const scene_name> ref_coordinate_names()
{
    return ref_coordinates;
}

std::span<const scene_name> redundant_input_names()
{
    return redundant_inputs;
}

std::span<const scene_name> redundant_output_names()
{
    return redundant_outputs;
}

std::span<const scene_name> safety_input_names()
{
    return safety_inputs;
}
} // namespace cbox_simulator

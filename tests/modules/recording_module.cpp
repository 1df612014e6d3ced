// A kinematics module that records what the client asks of it. Built with a model list and a joint count.
#include <cstdio>
#include <cstdlib>
#include <string>

#include "qorin/savrent_kinematics.h"

namespace
{
constexpr int models[] = {MODULE_MODELS};
constexpr int joints = MODULE_JOINTS;

int instances = 0;
std::string calls;
double table[4][joints] = {};

void record(const std::string& call)
{
    calls += call + ";";
    if (std::getenv("RECORDING_MODULE_PRINTS") != nullptr)
        std::fprintf(stderr, "%s\n", call.c_str());
}

std::string list(const double* values, int count)
{
    std::string text;
    for (int i = 0; i < count; ++i)
    {
        if (i != 0)
            text += ',';
        text += std::to_string(static_cast<int>(values[i]));
    }
    return text;
}

std::string instance(void* handle)
{
    return std::to_string(*static_cast<int*>(handle));
}

/// A negative x is out of reach.
char solve(const double* position, double* solution)
{
    for (int i = 0; i < joints; ++i)
        solution[i] = position[0] + i;
    return position[0] < 0 ? 2 : 1;
}
} // namespace

/// All calls since the module was mapped.
extern "C" SAVRENT_KINEMATICS_EXPORT const char* recorded_calls()
{
    return calls.c_str();
}

int savrent_kinematics_get_num_of_models(void)
{
    return static_cast<int>(std::size(models));
}

void savrent_kinematics_get_model_name(int* list_of_models)
{
    for (const int model : models)
        *list_of_models++ = model;
}

int savrent_kinematics_get_num_of_joints(void)
{
    const char* pretended = std::getenv("RECORDING_MODULE_PRETENDS_JOINTS");
    return pretended == nullptr ? joints : std::atoi(pretended);
}

void savrent_kinematics_create(void** handle)
{
    *handle = new int(++instances);
    record("create " + instance(*handle));
}

void savrent_kinematics_destroy(void** handle)
{
    record("destroy " + instance(*handle));
    delete static_cast<int*>(*handle);
}

void savrent_kinematics_set_model_name(void* handle, QORIN_ROBOT_MODEL model)
{
    record("model " + instance(handle) + " " + std::to_string(model));
}

void savrent_kinematics_forward(void* handle, const double* angles, double* position, double* orientation)
{
    record("forward " + instance(handle) + " " + list(angles, joints));
    for (int i = 0; i < 3; ++i)
    {
        position[i] = angles[0] + i;
        orientation[i] = 10 * angles[0] + i;
    }
}

char savrent_kinematics_inverse(void* handle, const double* position, const double* orientation,
                                const double* reference_joints, double* solution)
{
    record("inverse " + instance(handle) + " " + list(position, 3) + " " + list(orientation, 3) + " " +
           list(reference_joints, joints));
    return solve(position, solution);
}

void savrent_kinematics_inverse_all_solutions(void* handle, const double* position, const double* orientation,
                                              double* solutions, char* valid)
{
    record("all " + instance(handle) + " " + list(position, 3) + " " + list(orientation, 3));
    for (int i = 0; i < 8 * joints; ++i)
        solutions[i] = i;
    for (int i = 0; i < 8; ++i)
        valid[i] = static_cast<char>(i);
}

char savrent_kinematics_inverse_from_posture(void* handle, const double* position, const double* orientation,
                                             const char* posture, double* solution)
{
    record("posture " + instance(handle) + " " + list(position, 3) + " " + list(orientation, 3) + " " +
           std::to_string(posture[0]) + std::to_string(posture[1]) + std::to_string(posture[2]));
    return solve(position, solution);
}

void savrent_kinematics_set_dh_parameter(void* handle, const double* parameter_1, const double* parameter_2,
                                         const double* parameter_3, const double* parameter_4)
{
    const double* const parameters[] = {parameter_1, parameter_2, parameter_3, parameter_4};
    std::string text = "set_dh " + instance(handle);
    for (int i = 0; i < 4; ++i)
    {
        text += ' ';
        text += list(parameters[i], joints);
        for (int k = 0; k < joints; ++k)
            table[i][k] = parameters[i][k];
    }
    record(text);
}

void savrent_kinematics_get_dh_parameter(void* /*handle*/, double* parameter_1, double* parameter_2,
                                         double* parameter_3, double* parameter_4)
{
    double* const parameters[] = {parameter_1, parameter_2, parameter_3, parameter_4};
    for (int i = 0; i < 4; ++i)
        for (int k = 0; k < joints; ++k)
            parameters[i][k] = table[i][k];
}

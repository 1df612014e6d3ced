#ifndef SAVRENT_CTRL_ALGORITHM_ROBOT_KINEMATICS_H
#define SAVRENT_CTRL_ALGORITHM_ROBOT_KINEMATICS_H

#include <cstdint>
#include <functional>
#include <string>

#include "qorin/enumerations.h"
#include "savrent/cc/math/vector3.h"

namespace savrent::ctrl::algorithm
{
/**
 * The kinematics of one robot: an instance of the kinematics module that serves the robot's model.
 *
 * Modules are shared objects with the interface of qorin/savrent_kinematics.h, all in one directory. Joint angles
 * and orientations are in degrees. Arrays of joints have as many doubles as the module has joints, at most six.
 *
 * Owned by the robot's record. Made under the call lock; afterwards any thread calls without a lock, so the module has
 * to tolerate calls that run at once.
 */
class robot_kinematics
{
public:
    /**
     * Searches a directory for the first module that serves `model` and makes an instance of it.
     *
     * Where none does, the models ahead of QORIN_ROBOT_MODEL_DONOT_USE_ARM_BELOW get default kinematics, one linear
     * axis along x. A search that fails throws nothing: is_loaded() tells.
     *
     * @param path  directory; one with a leading dot, or none, is taken below $SAVRENT_V3. What does not exist is
     *              looked for below the current directory.
     */
    robot_kinematics(QORIN_ROBOT_MODEL model, std::string path);
    robot_kinematics(const robot_kinematics&) = delete;
    robot_kinematics& operator=(const robot_kinematics&) = delete;
    ~robot_kinematics();

    [[nodiscard]] bool is_loaded() const { return loaded_; }

    /// The flange pose of joint angles. Nothing happens when not loaded.
    void forward(const double* joints, cc::math::vector3& position, cc::math::vector3& orientation);

    /**
     * Joint angles of a flange pose, near a reference.
     *
     * @param joints  output: only written on success. May be the array of `reference`.
     * @return false when the module has no solution. True with nothing written when not loaded.
     */
    bool inverse(const cc::math::vector3& position, const cc::math::vector3& orientation, const double* reference,
                 double* joints);

    /**
     * All eight solutions for a flange pose. Nothing happens when not loaded.
     *
     * @param solutions  output: eight joint arrays, packed one after the other.
     * @param valid      output: eight flags.
     */
    void inverse_all_solutions(const cc::math::vector3& position, const cc::math::vector3& orientation,
                               double* solutions, bool* valid);

    /// Joint angles of a flange pose in one posture. Result and output as of inverse().
    bool inverse_from_posture(const cc::math::vector3& position, const cc::math::vector3& orientation,
                              QORIN_ROBOT_POSTURE posture, double* joints);

    /// Replaces the Denavit-Hartenberg table; what each array means is the module's business. A null array counts as
    /// zeroes. Nothing happens when not loaded.
    void set_dh_parameter(const double* parameter_1, const double* parameter_2, const double* parameter_3,
                          const double* parameter_4);

    /// Reads the table. @throws std::bad_function_call when not loaded
    void get_dh_parameter(double* parameter_1, double* parameter_2, double* parameter_3, double* parameter_4);

private:
    void load(QORIN_ROBOT_MODEL model, const std::string& path);
    [[nodiscard]] bool serves(const std::string& file, QORIN_ROBOT_MODEL model);
    void use_module(const std::string& file, QORIN_ROBOT_MODEL model);
    void use_default_kinematics();
    [[nodiscard]] std::uint32_t joint_count() const;

    // What wraps a symbol of a module keeps the module mapped.
    std::function<void(void** handle)> create_;
    std::function<void(void** handle)> destroy_;
    std::function<void(void* handle, const double* joints, double* position, double* orientation)> forward_;
    std::function<char(void* handle, const double* position, const double* orientation, const double* reference,
                       double* joints)>
        inverse_;
    std::function<void(void* handle, const double* position, const double* orientation, double* solutions, char* valid)>
        inverse_all_solutions_;
    std::function<char(void* handle, const double* position, const double* orientation, const char* posture,
                       double* joints)>
        inverse_from_posture_;
    std::function<void(void* handle, const double*, const double*, const double*, const double*)> set_dh_parameter_;
    std::function<void(void* handle, double*, double*, double*, double*)> get_dh_parameter_;
    std::uint32_t num_of_joints_ = 0; ///< as the file that was asked last reports it
    void* handle_ = nullptr;
    bool loaded_ = false;
};
} // namespace savrent::ctrl::algorithm

#endif

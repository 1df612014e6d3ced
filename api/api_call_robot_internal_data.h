#ifndef API_API_CALL_ROBOT_INTERNAL_DATA_H
#define API_API_CALL_ROBOT_INTERNAL_DATA_H

#include <cstdint>
#include <map>
#include <memory>

#include "qorin/enumerations.h"
#include "qorin/result.h"
#include "savrent/cc/math/vector3.h"
#include "savrent/ctrl/algorithm/robot_kinematics.h"

namespace qorin_api
{
/**
 * The client's companion of a robot that stands on a control box.
 *
 * Nothing writes the switches and the mode: their getters answer what stands here, not what the control box does.
 */
struct _api_robot_data
{
    std::uint32_t reserved_1 = 0;
    QORIN_SWITCH auto_adjust_switch = QORIN_SWITCH_OFF;
    std::unique_ptr<savrent::ctrl::algorithm::robot_kinematics> kinematics;
    std::uint32_t reserved_2 = 0;
    savrent::cc::math::vector3 reserved_3[3];
    QORIN_SWITCH ext_move_switch = QORIN_SWITCH_OFF;
    QORIN_SWITCH ext_move_stop_mode = QORIN_SWITCH_ON;
    double reserved_4[6] = {};
    double reserved_5[12] = {};
};

/**
 * The registry from robot id to record: a robot without one does not exist for the library.
 *
 * The key is the robot id alone, so two control boxes that hand out the same id share a record.
 *
 * The map has no lock. What changes it runs under the call lock; getters and conversions read it as they find it, so an
 * application must not destroy a robot while another thread asks for it.
 */
class api_call_robot_internal_data
{
public:
    /// Made on first use, by any thread. Not destroyed when the process ends, for threads that still ask then; the
    /// layer above has close_all() called.
    static std::shared_ptr<api_call_robot_internal_data> get_instance();

    api_call_robot_internal_data() = default;
    api_call_robot_internal_data(const api_call_robot_internal_data&) = delete;
    api_call_robot_internal_data& operator=(const api_call_robot_internal_data&) = delete;
    ~api_call_robot_internal_data();

    /**
     * Makes the record of a robot, with the kinematics module for its model from the directory at
     * `client.kinematics_path`. An id that has a record keeps it, whatever its model is.
     *
     * @return QORIN_API_RESULT_OK, or QORIN_API_RESULT_ROBOT_CLIENT_KINEMATICS_MODULE_LOAD_FAILURE.
     */
    [[nodiscard]] QORIN_API_RESULT create(unsigned int id, QORIN_ROBOT_MODEL model);

    /// The record, or null. Valid until it is erased.
    [[nodiscard]] _api_robot_data* get(unsigned int id);

    /// Erases a record and closes its module. An unknown id is ignored.
    void destroy(unsigned int id);

    /// Moves a record to another id. Nothing happens when that id is taken or the old one has no record.
    void chage_id(unsigned int new_id, unsigned int old_id);

    /// Erases all records, in the order of their ids.
    void destroy_all();

    /// Closes all modules, in the order of the ids, and leaves the records: getters of other threads go on. From here
    /// on no computation gets a module. Those under way are waited for; if they take too long, the modules stay open.
    void close_all();

private:
    std::map<unsigned int, _api_robot_data> robots_;
};

/// The kinematics of a robot for one computation, which the closing of modules at the end of the process waits for.
class kinematics_use
{
public:
    explicit kinematics_use(unsigned int robot_id);
    ~kinematics_use();
    kinematics_use(const kinematics_use&) = delete;
    kinematics_use& operator=(const kinematics_use&) = delete;

    /// False when the robot has no record or its module is closed: for computations it does not exist.
    explicit operator bool() const { return kinematics_ != nullptr; }

    savrent::ctrl::algorithm::robot_kinematics& operator*() const { return *kinematics_; }
    savrent::ctrl::algorithm::robot_kinematics* operator->() const { return kinematics_; }

private:
    savrent::ctrl::algorithm::robot_kinematics* kinematics_ = nullptr;
};
} // namespace qorin_api

#endif

#ifndef RPC_RPC_INTERNAL_JOINT_CHASER_H
#define RPC_RPC_INTERNAL_JOINT_CHASER_H

#include <memory>

#include "savrent/cc/udp.h"

/// The stream of joint targets to one robot.
struct robot_joint_chaser_data_t
{
    double joints[6] = {}; ///< goes out with the stop, and stays zero
    std::shared_ptr<savrent::cc::udp> socket;
};

/**
 * The stream of a robot, made at its first use and kept until the process ends.
 *
 * A stream that there is keeps its address, and `address` is not looked at. No lock: the first use of a robot's stream
 * must not come from two threads.
 */
[[nodiscard]] robot_joint_chaser_data_t& _qorin_internal_get_chaser_data(unsigned int cbox_id, unsigned int robot_id,
                                                                         const char* address);

#endif

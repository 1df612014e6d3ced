#ifndef TESTS_SUPPORT_ROBOT_PRESENCE_H
#define TESTS_SUPPORT_ROBOT_PRESENCE_H

namespace test_support
{
/**
 * Makes a robot exist for the library without a control box: its record, with the kinematics module that comes with the
 * library. The mirror is as it was.
 *
 * Loads a configuration for the process, so it comes before anything else that does.
 */
void make_robot_present(unsigned int robot_id);
} // namespace test_support

#endif

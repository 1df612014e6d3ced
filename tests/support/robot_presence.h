#ifndef TESTS_SUPPORT_ROBOT_PRESENCE_H
#define TESTS_SUPPORT_ROBOT_PRESENCE_H

namespace test_support
{
/// Makes the library hold a robot of this id as one that the process has created, with no command to a control box.
void make_robot_present(unsigned int robot_id);
} // namespace test_support

#endif

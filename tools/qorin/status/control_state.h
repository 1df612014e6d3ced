#ifndef TOOLS_QORIN_STATUS_CONTROL_STATE_H
#define TOOLS_QORIN_STATUS_CONTROL_STATE_H

#include <string>

namespace qorin_cli
{
/**
 * Whether this program may command the control box, as the box answers; who else may it tells nobody.
 *
 * @throws failure when it does not answer within two seconds. The question then stays under way, so that every further
 *         command would wait: the program has to end.
 */
[[nodiscard]] bool may_command(unsigned int cbox_id, const std::string& address);
} // namespace qorin_cli

#endif

#ifndef TOOLS_QORIN_VIEW_LIVE_BOX_H
#define TOOLS_QORIN_VIEW_LIVE_BOX_H

#include <memory>

#include "tools/qorin/connection.h"
#include "tools/qorin/view/status_source.h"

namespace qorin_view
{
/**
 * A control box that this process is connected to, as the source of what viewers see.
 *
 * Connects when made, and throws what the connecting does. The library takes events with a plain function, so there is
 * one at a time.
 */
[[nodiscard]] std::unique_ptr<status_source> make_live_box(const qorin_cli::connection_options& options);
} // namespace qorin_view

#endif

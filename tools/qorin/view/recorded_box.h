#ifndef TOOLS_QORIN_VIEW_RECORDED_BOX_H
#define TOOLS_QORIN_VIEW_RECORDED_BOX_H

#include <filesystem>
#include <memory>

#include "tools/qorin/view/status_source.h"

namespace qorin_view
{
/// A recording of `qorin record` as the source of what viewers see. Throws a failure when there is nothing to show.
[[nodiscard]] std::unique_ptr<status_source> make_recorded_box(const std::filesystem::path& file);
} // namespace qorin_view

#endif

#ifndef TOOLS_QORIN_VIEW_PAGE_FILE_H
#define TOOLS_QORIN_VIEW_PAGE_FILE_H

#include <span>
#include <string_view>

namespace qorin_view
{
/// A file of the page, as it is in this program.
struct page_file
{
    std::string_view path;
    std::string_view type;
    std::string_view content;
    bool is_compressed; ///< by gzip
};

/// All of them. Their source is made when the page is bundled.
[[nodiscard]] std::span<const page_file> page_files();
} // namespace qorin_view

#endif

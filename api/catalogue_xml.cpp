#include "api/catalogue_xml.h"

namespace qorin_api
{
catalogue_xml::catalogue_xml(const char* path, const char* root_tag)
    : file_(path == nullptr ? nullptr : std::fopen(path, "we")), root_tag_(root_tag)
{
    write_line({"<", root_tag_, ">"});
}

catalogue_xml::~catalogue_xml()
{
    write_line({"</", root_tag_, ">"});
}

void catalogue_xml::write_row(const char* tag, std::initializer_list<field> fields)
{
    write_line({"  <", tag, ">"});
    for (const field& entry : fields)
        write_line({"    <", entry.tag, ">", entry.text, "</", entry.tag, ">"});
    write_line({"  </", tag, ">"});
}

void catalogue_xml::write_line(std::initializer_list<std::string_view> parts)
{
    if (file_ == nullptr)
        return;
    for (const std::string_view part : parts)
        std::fwrite(part.data(), 1, part.size(), file_.get());
    std::fputc('\n', file_.get());
    std::fflush(file_.get());
}
} // namespace qorin_api

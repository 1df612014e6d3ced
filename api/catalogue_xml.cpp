#include "api/catalogue_xml.h"

namespace qorin_api
{
catalogue_xml::catalogue_xml(const char* path, const char* root_tag)
    : file_(path == nullptr ? "" : path), root_tag_(root_tag)
{
    file_ << '<' << root_tag_ << '>' << std::endl;
}

catalogue_xml::~catalogue_xml()
{
    file_ << "</" << root_tag_ << '>' << std::endl;
}

void catalogue_xml::write_row(const char* tag, std::initializer_list<field> fields)
{
    file_ << "  <" << tag << '>' << std::endl;
    for (const field& entry : fields)
        file_ << "    <" << entry.tag << '>' << entry.text << "</" << entry.tag << '>' << std::endl;
    file_ << "  </" << tag << '>' << std::endl;
}
} // namespace qorin_api

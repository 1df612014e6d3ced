#ifndef API_CATALOGUE_XML_H
#define API_CATALOGUE_XML_H

#include <cstdio>
#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>

namespace qorin_api
{
/**
 * The file that a catalogue is saved to, for the time of one save: a root element with one element per row.
 *
 * No declaration and no escaping: people read the texts as they stand in the catalogue. Each line is flushed. A file
 * that cannot be opened takes all writes without effect. Programs that start meanwhile do not inherit the file.
 */
class catalogue_xml
{
public:
    struct field
    {
        const char* tag;
        std::string text;
    };

    /// @param path  taken as it stands, an existing file is overwritten; null opens nothing.
    catalogue_xml(const char* path, const char* root_tag);
    ~catalogue_xml();
    catalogue_xml(const catalogue_xml&) = delete;
    catalogue_xml& operator=(const catalogue_xml&) = delete;

    void write_row(const char* tag, std::initializer_list<field> fields);

private:
    struct closer
    {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };

    void write_line(std::initializer_list<std::string_view> parts);

    std::unique_ptr<std::FILE, closer> file_;
    const char* root_tag_;
};
} // namespace qorin_api

#endif

#ifndef SAVRENT_CC_CONFIG_PARSER_H
#define SAVRENT_CC_CONFIG_PARSER_H

#include <atomic>
#include <functional>
#include <string>

#include <boost/property_tree/ptree.hpp>

namespace savrent::cc
{
/**
 * An INI file, read once.
 *
 * Loading happens on one thread; afterwards the tree is only read, by any thread and without a lock.
 */
class config_parser
{
public:
    /**
     * Reads the file at `path`; with a null path, $SAVRENT_V3/config/config.ini.
     *
     * Once a load has succeeded every further call returns true and changes nothing.
     *
     * @return true when a file is loaded.
     * @throws std::logic_error when `path` is null and SAVRENT_V3 is not set.
     */
    bool load_file(const char* path);

    /**
     * The value at `key`, given as "section.key"; only std::string is of use.
     *
     * @param found  may be null; tells whether there was a key to look up in a loaded file.
     * @throws boost::property_tree::ptree_bad_path when the loaded file has no such key.
     */
    template <class T>
    T parse(const char* key, bool* found) const;

    /**
     * Calls `callback` with section, key and value of each key in file order.
     *
     * @throws std::bad_function_call when the callback is empty and the file has a key.
     */
    void print(const std::function<void(const char*, const char*, const char*)>& callback) const;

    [[nodiscard]] bool is_loaded() const { return loaded_.load(std::memory_order_acquire); }

private:
    boost::property_tree::ptree tree_;
    std::atomic<bool> loaded_ = false;
};

template <>
std::string config_parser::parse<std::string>(const char* key, bool* found) const;
} // namespace savrent::cc

#endif

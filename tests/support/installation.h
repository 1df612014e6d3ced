#ifndef TESTS_SUPPORT_INSTALLATION_H
#define TESTS_SUPPORT_INSTALLATION_H

#include <filesystem>
#include <string>
#include <vector>

namespace test_support
{
/// A directory of this test's own that SAVRENT_V3 names, with a configuration whose logs lie below it.
class installation
{
public:
    /// @param print_out  value of client.log_print_out
    explicit installation(const std::string& print_out = "off", const std::string& log_trans = "off");
    ~installation();
    installation(const installation&) = delete;
    installation& operator=(const installation&) = delete;

    [[nodiscard]] const std::filesystem::path& directory() const { return directory_; }
    [[nodiscard]] std::string config_path() const { return (directory_ / "config" / "config.ini").string(); }

    /// Loads the configuration and opens the logs, as a first connection does.
    void start_logging() const;

    /// Texts of all records of the call log or the event log, over all its files.
    [[nodiscard]] std::vector<std::string> call_records() const { return records("_call_log"); }
    [[nodiscard]] std::vector<std::string> event_records() const { return records("_event_log"); }

    /// All records of the event log in one text.
    [[nodiscard]] std::string event_text() const;

    /// The call records alone ("name(arguments);"), without thread, time and stamp.
    [[nodiscard]] std::vector<std::string> calls() const;

private:
    [[nodiscard]] std::vector<std::string> records(const std::string& suffix) const;

    std::filesystem::path directory_;
};

void write_file(const std::filesystem::path& path, const std::string& text);
[[nodiscard]] std::string read_file(const std::filesystem::path& path);

/// The texts of the records of one log file.
[[nodiscard]] std::vector<std::string> log_records(const std::filesystem::path& file);
} // namespace test_support

#endif

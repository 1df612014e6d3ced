#include "tools/log_reader/log_printer.h"

#include <algorithm>
#include <chrono>
#include <memory>
#include <ostream>
#include <thread>

#include "tools/log_reader/log_record_reader.h"

namespace qorin_log
{
namespace
{
namespace fs = std::filesystem;
constexpr auto poll_interval = std::chrono::milliseconds(50);

void print_whole_records(log_record_reader& reader, std::ostream& out)
{
    while (const auto text = reader.next())
        out << *text;
    out.flush();
}

/// A log that still grows: its current file, and the next one when the library has gone on to it.
class followed_log
{
public:
    explicit followed_log(const fs::path& file) : reader_(std::make_unique<log_record_reader>(fs::absolute(file))) {}

    void advance(std::ostream& out)
    {
        print_whole_records(*reader_, out);
        const fs::path next = next_file();
        if (next.empty())
            return;
        print_whole_records(*reader_, out); // what came between the last look and the change of files
        reader_->expect_end();
        reader_ = std::make_unique<log_record_reader>(next);
        print_whole_records(*reader_, out);
    }

private:
    [[nodiscard]] fs::path next_file() const
    {
        const std::vector<fs::path> files = numbered_files(reader_->path().parent_path());
        const auto current = std::find(files.begin(), files.end(), reader_->path());
        return current == files.end() || current + 1 == files.end() ? fs::path() : *(current + 1);
    }

    std::unique_ptr<log_record_reader> reader_;
};

class printer
{
public:
    printer(std::ostream& out, std::ostream& errors) : out_(out), errors_(errors) {}

    /// Runs one step and reports what it throws; false when it did.
    template <class Step>
    bool attempt(Step&& step)
    {
        try
        {
            step();
            return true;
        }
        catch (const std::exception& failure)
        {
            out_.flush();
            errors_ << "qorin_log: " << failure.what() << std::endl;
            status_ = 1;
            return false;
        }
    }

    void print_file(const fs::path& file)
    {
        attempt(
            [&]
            {
                log_record_reader reader(file);
                print_whole_records(reader, out_);
                reader.expect_end();
            });
    }

    void follow(std::vector<followed_log> logs, const std::function<bool()>& stop)
    {
        while (!stop() && !logs.empty() && out_)
        {
            std::erase_if(logs, [&](followed_log& log) { return !attempt([&] { log.advance(out_); }); });
            std::this_thread::sleep_for(poll_interval);
        }
    }

    [[nodiscard]] int status() const { return status_; }

private:
    std::ostream& out_;
    std::ostream& errors_;
    int status_ = 0;
};
} // namespace

int cat(const cat_request& request, std::ostream& out, std::ostream& errors, const std::function<bool()>& stop)
{
    printer output(out, errors);
    std::vector<followed_log> followed;
    for (const fs::path& path : request.paths)
    {
        std::vector<fs::path> files;
        output.attempt([&] { files = log_files(path, request.kind); });
        if (request.follow && !files.empty())
        {
            output.attempt([&] { followed.emplace_back(files.back()); });
            files.pop_back();
        }
        for (const fs::path& file : files)
            output.print_file(file);
    }
    if (request.follow)
        output.follow(std::move(followed), stop);
    return output.status();
}
} // namespace qorin_log

#ifndef SAVRENT_CC_SHARED_DATA_MANAGER_H
#define SAVRENT_CC_SHARED_DATA_MANAGER_H

#include <atomic>
#include <memory>

#include "protocol/status_frame.h"
#include "savrent/cc/data_tcp_shared_data.h"
#include "savrent/cc/system_data.h"

namespace savrent::cc
{
/**
 * The status frame that the control software and the programs beside it share.
 *
 * A client that is connected by the three links never starts it: its frame lies in the connection object. The data
 * pointers may be asked for on any thread; one thread starts and ends the layer.
 */
class shared_data_manager
{
public:
    static std::shared_ptr<shared_data_manager> get_instance();

    /**
     * Starts the layer: frames exchanged over TCP when `common.transfer_protocol` is "tcp", a block of shared memory
     * of this name otherwise.
     *
     * @return false when the layer is started already, or when the memory cannot be had.
     */
    bool init(const char* name);

    /// Ends the exchange and gives the memory back.
    void terminate();

    /// The frame that this process writes, or null. The first call in the process that finds none is a software error.
    [[nodiscard]] protocol::shared_data_t* get_data();

    /// The frame that this process reads, or null, reported together with get_data(). The same frame in shared memory.
    [[nodiscard]] const protocol::shared_data_t* get_data_c();

    [[nodiscard]] data_tcp_shared_data& tcp_data() { return tcp_data_; }

private:
    void report_null_once();

    std::atomic<protocol::shared_data_t*> data_ = nullptr;
    std::atomic<const protocol::shared_data_t*> data_c_ = nullptr;
    data_tcp_shared_data tcp_data_;
    std::atomic<bool> null_is_reported_ = false;
};

bool init_shared_data(const char* name);
void terminate_shared_data();
[[nodiscard]] const protocol::shared_data_t* get_shared_data_c();

/// The system section of the frame that this process writes. Null in a client: every caller must accept that.
[[nodiscard]] system_data* get_system_data();

/// The control software has filled its frame: it may be sent.
void set_shared_data_fw_run();

/// The link on which frames go out. It stays the caller's, and must live until terminate_shared_data().
void set_shared_data_write_tcp_client(tcp_client* client);

/// The link on which frames come in; as above.
void set_shared_data_read_tcp_client(tcp_client* client);
} // namespace savrent::cc

#endif

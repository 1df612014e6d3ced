#ifndef SAVRENT_CC_DIAGNOSTICS_H
#define SAVRENT_CC_DIAGNOSTICS_H

namespace savrent::cc
{
/**
 * Ties the messages and the software faults of the foundations to where they go, which lies above those who report.
 *
 * Messages: until qorin_debug_print_init() has run, to standard output when `client.log_print_out` is "on", cut at 640
 * bytes, with neither time nor type; afterwards to the log transport when `server.log_trans` is "on". Both keys are
 * read at the first message of their kind only. Faults: to the system section of the shared frame, when there is one.
 *
 * Before the first thread that reports; again does no harm.
 */
void start_diagnostics();
} // namespace savrent::cc

#endif

/// @file
/// Many jobs in several processes, of which each does one after the other.

#ifndef CLI_BATCH_H
#define CLI_BATCH_H

#include <functional>
#include <string>
#include <vector>

namespace vellox::cli {

/// What came of a job.
struct JobResult {
    bool isDone = false;
    std::string text;                  ///< why it isn't done, in one line
    std::string id;                    ///< of the error; or empty
    std::vector<std::string> warnings; ///< a line each
};

/// Numbers of jobs to workers, results back. A worker is a copy of this process: what was read before the
/// batch is read for all. A worker that dies is told as the failure of its job, and another takes its place.
/// The first Ctrl-C lets the jobs end that have begun and starts no further ones; another ends them, too.
class Batch {
public:
    using Work = std::function<JobResult(std::size_t)>;
    using Told = std::function<void(std::size_t, const JobResult&)>;

    /// @param work does a job, in a worker; what it throws is its failure
    /// @param told hears of each result as it comes, in this process
    Batch(Work work, Told told) : work_(std::move(work)), told_(std::move(told)) {}

    /// @param jobs the number of workers, at least 1
    /// @return false if it was interrupted: not all jobs have a result then
    /// @throws Failure if no worker can be started
    bool run(std::size_t count, unsigned jobs);

private:
    struct Worker {
        int pid = -1;
        int socket = -1; // each result comes as a frame: see Batch.cpp
        std::size_t job = 0;
        bool isBusy = false;
        std::string received = {};
    };

    void start(Worker& worker);
    [[noreturn]] void serve(int socket);
    bool give(Worker& worker);
    void hear(Worker& worker);
    void bury(Worker& worker);
    void take(Worker& worker, const JobResult& result);

    Work work_;
    Told told_;
    std::vector<Worker> workers_;
    std::size_t count_ = 0;
    std::size_t next_ = 0;
};

/// How many processors this process may use.
unsigned countProcessors();

} // namespace vellox::cli

#endif

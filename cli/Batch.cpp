#include "cli/Batch.h"

#include "cli/Console.h"

#include <poll.h>
#include <sched.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstring>

namespace vellox::cli {

namespace {

volatile std::sig_atomic_t interruptions = 0;

void countInterruption(int) {
    interruptions = interruptions + 1;
}

/// Ctrl-C, and the end that others ask for, are counted while this lives.
class Interruptions {
public:
    Interruptions() {
        interruptions = 0;
        struct sigaction action = {};
        action.sa_handler = countInterruption; // without SA_RESTART: poll is to return
        ::sigaction(SIGINT, &action, &formerInterrupt_);
        ::sigaction(SIGTERM, &action, &formerEnd_);
    }
    ~Interruptions() {
        ::sigaction(SIGINT, &formerInterrupt_, nullptr);
        ::sigaction(SIGTERM, &formerEnd_, nullptr);
    }
    Interruptions(const Interruptions&) = delete;
    Interruptions& operator=(const Interruptions&) = delete;

private:
    struct sigaction formerInterrupt_ = {}, formerEnd_ = {};
};

// Results as bytes: a frame is its size and texts with their sizes in front.

using Size = std::uint32_t;

void appendSize(std::string& bytes, std::size_t size) {
    const Size fixed = static_cast<Size>(size);
    bytes.append(reinterpret_cast<const char*>(&fixed), sizeof fixed);
}

Size readSize(const std::string& bytes, std::size_t at) {
    Size size = 0;
    std::memcpy(&size, bytes.data() + at, sizeof size);
    return size;
}

void appendText(std::string& bytes, const std::string& text) {
    appendSize(bytes, text.size());
    bytes += text;
}

std::string pack(const JobResult& result) {
    std::string body(1, result.isDone ? '+' : '-');
    appendText(body, result.text);
    appendText(body, result.id);
    for (const std::string& warning : result.warnings)
        appendText(body, warning);
    std::string frame;
    appendText(frame, body);
    return frame;
}

JobResult unpack(const std::string& body) {
    std::vector<std::string> texts;
    for (std::size_t at = 1; at < body.size();) {
        const Size size = readSize(body, at);
        texts.push_back(body.substr(at + sizeof size, size));
        at += sizeof size + size;
    }
    return {body[0] == '+', texts[0], texts[1], {texts.begin() + 2, texts.end()}};
}

bool sendAll(int socket, const std::string& bytes) {
    for (std::size_t sent = 0; sent < bytes.size();) {
        const ssize_t count = ::send(socket, bytes.data() + sent, bytes.size() - sent, MSG_NOSIGNAL);
        if (count < 0 && errno != EINTR)
            return false;
        sent += count < 0 ? 0 : static_cast<std::size_t>(count);
    }
    return true;
}

// Ctrl-C interrupts the call, and nothing is known of the process then.
int waitFor(int pid) {
    int status = 0;
    while (::waitpid(pid, &status, 0) < 0 && errno == EINTR) {
    }
    return status;
}

std::string describeDeath(int status) {
    if (WIFSIGNALED(status))
        return std::string("its process has died: ") + strsignal(WTERMSIG(status));
    return "its process has ended with status " + std::to_string(WEXITSTATUS(status));
}

} // namespace

unsigned countProcessors() {
    cpu_set_t set;
    const int count = ::sched_getaffinity(0, sizeof set, &set) == 0 ? CPU_COUNT(&set) : 1;
    return static_cast<unsigned>(std::max(count, 1));
}

bool Batch::run(std::size_t count, unsigned jobs) {
    const Interruptions handler;
    count_ = count;
    next_ = 0;
    workers_.assign(std::min<std::size_t>(jobs, count), Worker());
    for (Worker& worker : workers_) {
        start(worker);
        give(worker);
    }
    const auto isBusy = [](const Worker& worker) { return worker.isBusy; };
    while (std::any_of(workers_.begin(), workers_.end(), isBusy)) {
        std::vector<pollfd> polled;
        for (const Worker& worker : workers_)
            polled.push_back({worker.isBusy ? worker.socket : -1, POLLIN, 0});
        if (::poll(polled.data(), polled.size(), -1) < 0)
            for (pollfd& entry : polled)
                entry.revents = 0;
        for (std::size_t i = 0; i < workers_.size(); ++i)
            if (polled[i].revents != 0)
                hear(workers_[i]);
        if (interruptions > 1)
            for (const Worker& worker : workers_)
                if (worker.isBusy)
                    ::kill(worker.pid, SIGKILL);
    }
    for (Worker& worker : workers_)
        bury(worker);
    return interruptions == 0;
}

void Batch::start(Worker& worker) {
    int ends[2];
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0)
        throw Failure(std::string("no process can be started: ") + std::strerror(errno));
    std::fflush(nullptr); // or the copy writes it again
    const int parent = ::getpid();
    const int pid = ::fork();
    if (pid < 0)
        throw Failure(std::string("no process can be started: ") + std::strerror(errno));
    if (pid == 0) {
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (::getppid() != parent)
            ::_exit(kFailed);
        ::close(ends[0]);
        for (const Worker& other : workers_)
            if (other.socket >= 0)
                ::close(other.socket);
        serve(ends[1]);
    }
    ::close(ends[1]);
    worker = Worker();
    worker.pid = pid;
    worker.socket = ends[0];
}

/// A worker's life: a number of a job comes, its result goes.
void Batch::serve(int socket) {
    std::signal(SIGINT, SIG_IGN); // the terminal tells all; whoever has begun ends its job
    std::signal(SIGTERM, SIG_IGN);
    Size job = 0;
    while (::recv(socket, &job, sizeof job, MSG_WAITALL) == static_cast<ssize_t>(sizeof job)) {
        JobResult result;
        try {
            result = work_(job);
        } catch (...) {
            const ErrorText error = describeCurrentError();
            result = {false, error.text, error.id, {}};
        }
        if (!sendAll(socket, pack(result)))
            break;
    }
    ::_exit(kDone); // what lies in buffers is the other process's
}

bool Batch::give(Worker& worker) {
    if (next_ >= count_ || interruptions > 0)
        return false;
    worker.job = next_++;
    worker.isBusy = true;
    std::string number;
    appendSize(number, worker.job);
    sendAll(worker.socket, number); // where it fails, so does the reading
    return true;
}

void Batch::hear(Worker& worker) {
    char block[65536];
    const ssize_t count = ::recv(worker.socket, block, sizeof block, 0);
    if (count < 0 && errno == EINTR)
        return;
    if (count > 0) {
        worker.received.append(block, static_cast<std::size_t>(count));
        if (worker.received.size() < sizeof(Size) ||
            worker.received.size() - sizeof(Size) < readSize(worker.received, 0))
            return;
        const JobResult result = unpack(worker.received.substr(sizeof(Size)));
        worker.received.clear();
        take(worker, result);
        give(worker);
        return;
    }
    const int status = waitFor(worker.pid);
    ::close(worker.socket);
    worker.pid = worker.socket = -1;
    take(worker, {false, describeDeath(status), {}, {}});
    if (next_ < count_ && interruptions == 0) {
        start(worker);
        give(worker);
    }
}

void Batch::take(Worker& worker, const JobResult& result) {
    worker.isBusy = false;
    told_(worker.job, result);
}

void Batch::bury(Worker& worker) {
    if (worker.pid < 0)
        return;
    ::close(worker.socket); // which tells it to end
    waitFor(worker.pid);
    worker.pid = -1;
}

} // namespace vellox::cli

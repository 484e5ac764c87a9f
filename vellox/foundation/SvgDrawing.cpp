#include "vellox/foundation/SvgDrawing.h"

#include "vellox/foundation/SvgText.h"

#ifdef VELLOX_HAS_LIBRSVG
#include "vellox/host/services/LateLibrary.h"

#include <librsvg/rsvg.h>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace vellox {

#ifdef VELLOX_HAS_LIBRSVG

namespace {

// What is used of librsvg and of the libraries that it brings along.
struct Library {
    host::LateLibrary file{"librsvg-2.so.2"};
    decltype(&rsvg_handle_new_from_data) newFromData = file.find("rsvg_handle_new_from_data");
    decltype(&rsvg_handle_set_dpi) setDpi = file.find("rsvg_handle_set_dpi");
    decltype(&rsvg_handle_render_document) render = file.find("rsvg_handle_render_document");
    decltype(&cairo_image_surface_create) createSurface = file.find("cairo_image_surface_create");
    decltype(&cairo_create) createContext = file.find("cairo_create");
    decltype(&cairo_surface_status) getStatus = file.find("cairo_surface_status");
    decltype(&cairo_surface_write_to_png_stream) writePng = file.find("cairo_surface_write_to_png_stream");
};

const Library& getLibrary() {
    static const Library& library = *new const Library;
    return library;
}

// The first byte of what the child sends: behind it comes a PNG, or the reason why there is none.
constexpr char kDrawn = 'D', kRefused = 'R';

// The child's side. It ends with the drawing, so that nothing is given back.

bool send(int pipe, const char* bytes, std::size_t count) {
    while (count > 0) {
        const ssize_t sent = write(pipe, bytes, count);
        if (sent < 0 && errno == EINTR)
            continue;
        if (sent <= 0)
            return false;
        bytes += sent;
        count -= static_cast<std::size_t>(sent);
    }
    return true;
}

cairo_status_t sendPng(void* pipe, const unsigned char* data, unsigned int length) {
    const bool isSent = send(*static_cast<int*>(pipe), reinterpret_cast<const char*>(data), length);
    return isSent ? CAIRO_STATUS_SUCCESS : CAIRO_STATUS_WRITE_ERROR;
}

void refuse(int pipe, const char* reason) {
    if (send(pipe, &kRefused, 1))
        send(pipe, reason, std::strlen(reason));
}

// Beyond what the process has already.
void limitChild(const DrawingLimits& limits) {
    unsigned long long pages = 0;
    if (std::FILE* own = std::fopen("/proc/self/statm", "r")) {
        if (std::fscanf(own, "%*u %*u %*u %*u %*u %llu", &pages) != 1)
            pages = 0;
        std::fclose(own);
    }
    const rlim_t memory = pages * static_cast<unsigned long long>(sysconf(_SC_PAGESIZE)) + limits.memory;
    const rlimit data{memory, memory}, time{limits.seconds, limits.seconds}, core{0, 0};
    if (pages > 0)
        setrlimit(RLIMIT_DATA, &data);
    setrlimit(RLIMIT_CPU, &time);
    setrlimit(RLIMIT_CORE, &core);
    for (const int deadly : {SIGXCPU, SIGPIPE, SIGABRT, SIGSEGV, SIGBUS, SIGILL, SIGFPE})
        std::signal(deadly, SIG_DFL); // whoever reports a crash of the host isn't concerned
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    const int nowhere = ::open("/dev/null", O_WRONLY); // for what its libraries say
    if (nowhere >= 0)
        dup2(nowhere, STDERR_FILENO);
}

// No base address is set, so that librsvg follows no reference out of the image.
// @return whether all was sent, be it a reason
bool draw(int pipe, const std::string& svg, int width, int height) {
    constexpr double kDpi = 96;
    const Library& library = getLibrary();
    GError* error = nullptr;
    RsvgHandle* handle = library.newFromData(reinterpret_cast<const guint8*>(svg.data()), svg.size(), &error);
    if (!handle) {
        refuse(pipe, error ? error->message : "it can't be read");
        return true;
    }
    library.setDpi(handle, kDpi);
    cairo_surface_t* surface = library.createSurface(CAIRO_FORMAT_ARGB32, width, height);
    const RsvgRectangle viewport{0, 0, static_cast<double>(width), static_cast<double>(height)};
    const bool isDrawn = library.getStatus(surface) == CAIRO_STATUS_SUCCESS &&
                         library.render(handle, library.createContext(surface), &viewport, &error);
    if (!isDrawn) {
        refuse(pipe, error ? error->message : "there is no memory for the drawing");
        return true;
    }
    return send(pipe, &kDrawn, 1) && library.writePng(surface, sendPng, &pipe) == CAIRO_STATUS_SUCCESS;
}

// Nothing may be thrown into what the parent was doing.
[[noreturn]] void beChild(int pipe, const std::string& svg, int width, int height,
                          const DrawingLimits& limits) noexcept {
    const int kept =
        fcntl(pipe, F_DUPFD_CLOEXEC, STDERR_FILENO + 1); // the pipe may be what stands for errors
    limitChild(limits);
    _exit(kept >= 0 && draw(kept, svg, width, height) ? 0 : 1);
}

// The parent's side.

class Descriptor {
public:
    explicit Descriptor(int number) : number_(number) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() { close(); }

    int get() const { return number_; }
    void close() {
        if (number_ >= 0)
            ::close(number_);
        number_ = -1;
    }

private:
    int number_;
};

class Child {
public:
    explicit Child(pid_t id) : id_(id) {}
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;
    ~Child() { wait(); }

    void kill() const { ::kill(id_, SIGKILL); }
    /// @return whether it came to its end by itself; also where somebody else in the process has waited for it
    bool wait() {
        if (isGone_)
            return isWell_;
        int status = 0;
        pid_t found = 0;
        do
            found = waitpid(id_, &status, 0);
        while (found < 0 && errno == EINTR);
        isGone_ = true;
        isWell_ = found < 0 || (WIFEXITED(status) && WEXITSTATUS(status) == 0);
        return isWell_;
    }

private:
    pid_t id_;
    bool isGone_ = false, isWell_ = false;
};

// All that comes until the other end is closed; nothing if that takes too long.
std::string receive(int pipe, const Child& child, const DrawingLimits& limits) {
    constexpr unsigned int kWaits = 3; // a process needn't have the processor for itself
    constexpr std::size_t kGreatestDrawn = 256 << 20;
    std::string bytes;
    char block[1 << 16];
    using Clock = std::chrono::steady_clock; // the host's signals may end each wait
    const Clock::time_point end = Clock::now() + std::chrono::seconds(limits.seconds * kWaits);
    while (Clock::now() < end && bytes.size() < kGreatestDrawn) {
        pollfd wanted{pipe, POLLIN, 0};
        const int ready = poll(&wanted, 1, 1000);
        if (ready < 0 && errno != EINTR)
            break;
        if (ready <= 0)
            continue;
        const ssize_t count = read(pipe, block, sizeof(block));
        if (count == 0)
            return bytes;
        if (count > 0)
            bytes.append(block, static_cast<std::size_t>(count));
    }
    child.kill();
    return {};
}

} // namespace

bool canDrawSvg() {
    return getLibrary().file.isWhole();
}

std::string drawSvg(const std::string& svg, unsigned int width, unsigned int height,
                    const DrawingLimits& limits) {
    const auto limit = [](unsigned int side) {
        return static_cast<int>(side == 0 ? 1 : side > kGreatestDrawing ? kGreatestDrawing : side);
    };
    if (!canDrawSvg())
        throw SvgFault("librsvg isn't installed");
    if (svg.size() > kGreatestSvg)
        throw SvgFault("it is larger than 32 MB");
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0)
        throw SvgFault("no pipe can be had");
    Descriptor reading(ends[0]), writing(ends[1]);
    const pid_t id = fork();
    if (id < 0)
        throw SvgFault("no process can be had");
    if (id == 0)
        beChild(writing.get(), svg, limit(width), limit(height), limits);
    Child child(id);
    writing.close();
    std::string sent = receive(reading.get(), child, limits);
    if (!child.wait() || sent.empty())
        throw SvgFault("drawing it takes too much time or memory");
    const char kind = sent[0];
    sent.erase(0, 1);
    if (kind != kDrawn)
        throw SvgFault(sent.substr(0, sent.find_last_not_of(" \n") + 1));
    return sent;
}

#else

bool canDrawSvg() {
    return false;
}

std::string drawSvg(const std::string&, unsigned int, unsigned int, const DrawingLimits&) {
    throw SvgFault("the library was built without librsvg");
}

#endif

} // namespace vellox

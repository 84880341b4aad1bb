#include "batch/Jobs.h"

#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <new>
#include <streambuf>
#include <string>
#include <vector>

#include "batch/Interrupt.h"
#include "io/FileDescriptor.h"
#include "model/Index.h"

namespace vorlan {

namespace {

constexpr int kLongestWait = 100;  // ms

/// A stream into a descriptor.
class DescriptorBuffer : public std::streambuf {
  public:
    explicit DescriptorBuffer(int descriptor) : descriptor_(descriptor) {
        setp(buffer_.data(), buffer_.data() + buffer_.size());
    }

  protected:
    int_type overflow(int_type character) override {
        if (sync() != 0) {
            return traits_type::eof();
        }
        if (!traits_type::eq_int_type(character, traits_type::eof())) {
            sputc(traits_type::to_char_type(character));
        }
        return traits_type::not_eof(character);
    }
    int sync() override {
        for (const char* at = pbase(); at < pptr();) {
            const ssize_t written = ::write(descriptor_, at, asSize(pptr() - at));
            if (written < 0 && errno != EINTR) {
                return -1;
            }
            at += std::max<ssize_t>(written, 0);
        }
        setp(buffer_.data(), buffer_.data() + buffer_.size());
        return 0;
    }

  private:
    int descriptor_;
    std::array<char, 4096> buffer_;
};

struct Pipe {
    FileDescriptor reader;
    FileDescriptor writer;

    bool open() {
        int ends[2];
        if (::pipe(ends) != 0) {
            return false;
        }
        reader = FileDescriptor(ends[0]);
        writer = FileDescriptor(ends[1]);
        return true;
    }
};

/// A task and the process that does it.
struct Worker {
    pid_t process = -1;
    FileDescriptor out;
    FileDescriptor err;
    std::string output;  ///< not passed on yet
    std::string line;    ///< of err, not complete yet
    bool finished = false;
};

[[noreturn]] void work(int index, const Pipe& out, const Pipe& err, const std::function<void(int, Console&)>& task) {
    stopWatching();
    DescriptorBuffer outBuffer(out.writer.get());
    DescriptorBuffer errBuffer(err.writer.get());
    std::ostream outStream(&outBuffer);
    std::ostream errStream(&errBuffer);
    Console console{outStream, errStream, false};
    const ExitStatus status = guarded(console, [&](Console& own) { task(index, own); });
    outStream.flush();
    errStream.flush();
    // Buffers and exit handlers of the parent are the parent's.
    ::_exit(asInt(status));
}

/// Starts the worker of an index; false when the system has no room for it.
bool start(std::vector<Worker>& workers, std::size_t index, const std::function<void(int, Console&)>& task) {
    Worker& worker = workers[index];
    Pipe out;
    Pipe err;
    if (!out.open() || !err.open()) {
        return false;
    }
    worker.process = ::fork();
    if (worker.process == 0) {
        // What the parent reads from is of no use here, and descriptors can be few.
        for (Worker& other : workers) {
            other.out.close();
            other.err.close();
        }
        work(asInt(index), out, err, task);
    }
    if (worker.process < 0) {
        return false;
    }
    worker.out = std::move(out.reader);
    worker.err = std::move(err.reader);
    return true;
}

/// Takes what is there; false at the end.
bool take(FileDescriptor& descriptor, std::string& text) {
    std::array<char, 65536> buffer;
    const ssize_t got = ::read(descriptor.get(), buffer.data(), buffer.size());
    if (got < 0 && errno == EINTR) {
        return true;
    }
    if (got <= 0) {
        descriptor.close();
        return false;
    }
    text.append(buffer.data(), asSize(got));
    return true;
}

void passLines(Worker& worker, Console& console) {
    const std::size_t end = worker.line.rfind('\n');
    if (end != std::string::npos) {
        console.err.write(worker.line.data(), static_cast<std::streamsize>(end + 1)).flush();
        worker.line.erase(0, end + 1);
    }
}

ExitStatus endOf(Worker& worker, Console& console) {
    int status = 0;
    while (::waitpid(worker.process, &status, 0) < 0 && errno == EINTR) {
    }
    worker.finished = true;
    if (WIFEXITED(status)) {
        return static_cast<ExitStatus>(WEXITSTATUS(status));
    }
    if (!interrupted()) {
        console.complain("a worker process was ended by signal " + std::to_string(WTERMSIG(status)));
    }
    return interrupted() ? ExitStatus::Interrupted : ExitStatus::Refused;
}

class WorkerPool {
  public:
    WorkerPool(int count, Console& console, const std::function<void(int, Console&)>& task)
        : workers_(asSize(count)), console_(console), task_(task) {}

    ExitStatus run(int jobs) {
        while (passed_ < workers_.size()) {
            while (started_ < workers_.size() && running_ < jobs && startNext()) {
            }
            if (running_ > 0) {
                wait();
            }
            passOutputs();
        }
        return worst_;
    }

  private:
    /// False when the system has no room for another worker beside those that run: one of them has to end first.
    bool startNext() {
        Worker& worker = workers_[started_];
        if (interrupted()) {
            worst_ = worse(worst_, ExitStatus::Interrupted);
            worker.finished = true;
        } else if (start(workers_, started_, task_)) {
            ++running_;
        } else if (running_ > 0) {
            return false;
        } else {
            console_.complain("a worker process cannot be started: " + systemReason(errno));
            worst_ = worse(worst_, ExitStatus::Refused);
            worker.finished = true;
        }
        ++started_;
        return true;
    }

    void wait() {
        std::vector<pollfd> polled;
        std::vector<Worker*> owners;
        for (Worker& worker : workers_) {
            for (const FileDescriptor* descriptor : {&worker.out, &worker.err}) {
                if (descriptor->isOpen()) {
                    polled.push_back({descriptor->get(), POLLIN, 0});
                    owners.push_back(&worker);
                }
            }
        }
        // A signal just before the call would not end it: the wait is short.
        const int ready = ::poll(polled.data(), polled.size(), kLongestWait);
        if (interrupted() && !stopping_) {
            stopping_ = true;
            stopWorkers();
        }
        if (ready <= 0) {
            return;
        }
        for (std::size_t i = 0; i < polled.size(); ++i) {
            if (polled[i].revents != 0) {
                read(*owners[i], polled[i].fd);
            }
        }
    }

    void read(Worker& worker, int descriptor) {
        if (worker.out.get() == descriptor) {
            take(worker.out, worker.output);
        } else if (take(worker.err, worker.line)) {
            passLines(worker, console_);
        }
        if (!worker.out.isOpen() && !worker.err.isOpen()) {
            console_.err << worker.line << std::flush;
            worst_ = worse(worst_, endOf(worker, console_));
            --running_;
        }
    }

    // A signal from the terminal has reached the workers too; one that was sent to this process alone has not.
    void stopWorkers() {
        for (const Worker& worker : workers_) {
            if (worker.process > 0 && !worker.finished) {
                ::kill(worker.process, SIGTERM);
            }
        }
    }

    void passOutputs() {
        for (; passed_ < workers_.size() && workers_[passed_].finished; ++passed_) {
            std::string& output = workers_[passed_].output;
            console_.out.write(output.data(), static_cast<std::streamsize>(output.size())).flush();
            output = {};
            if (!console_.out && worst_ < ExitStatus::Unwritable) {
                console_.complain("Standard output cannot be written");
                worst_ = worse(worst_, ExitStatus::Unwritable);
            }
        }
    }

    std::vector<Worker> workers_;
    Console& console_;
    const std::function<void(int, Console&)>& task_;
    std::size_t started_ = 0;
    std::size_t passed_ = 0;
    int running_ = 0;
    bool stopping_ = false;
    ExitStatus worst_ = ExitStatus::Done;
};

}  // namespace

ExitStatus worse(ExitStatus a, ExitStatus b) {
    return std::max(a, b);
}

ExitStatus guarded(Console& console, const std::function<void(Console&)>& task) {
    try {
        task(console);
        return ExitStatus::Done;
    } catch (const RunError& error) {
        console.complain(error.what());
        return error.status();
    } catch (const std::bad_alloc&) {
        console.complain("Out of memory.");
    } catch (const std::exception& error) {
        console.complain(error.what());
    }
    return ExitStatus::Refused;
}

ExitStatus runInProcesses(int count, int jobs, Console& console, const std::function<void(int, Console&)>& task) {
    return WorkerPool(count, console, task).run(jobs);
}

}  // namespace vorlan

#include "ui/frame/Recovery.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <atomic>
#include <chrono>
#include <new>
#include <thread>

#include "io/FileError.h"
#include "model/Index.h"
#include "model/Text.h"

namespace vorlan {

namespace {

/// Beside the settings of the program.
std::filesystem::path recoveryFolder() {
    const QString settings =
        QFileInfo(QSettings(QStringLiteral("Brimsel"), QStringLiteral("Vorlan")).fileName()).absolutePath();
    return std::filesystem::path(QFile::encodeName(settings).toStdString()) / "Vorlan-recovery";
}

QString timeText(std::filesystem::file_time_type time) {
    const auto age =
        std::chrono::duration_cast<std::chrono::seconds>(std::filesystem::file_time_type::clock::now() - time);
    return QDateTime::currentDateTime().addSecs(-age.count()).toString(QStringLiteral("yyyy-MM-dd hh:mm"));
}

}  // namespace

struct Recovery::Writing {
    /// Its columns are shared with the document's workspace. It goes after the thread has ended: nobody but the
    /// window's thread then sees how many share them.
    const Workspace workspace;
    const StampedFile original;
    const std::uint64_t state;
    std::string error = {};
    std::atomic<bool> ended = false;
    std::thread thread = {};

    void wait() {
        if (thread.joinable()) {
            thread.join();
        }
    }
};

Recovery::~Recovery() {
    // Nobody is told any more.
    if (writing_ != nullptr) {
        writing_->wait();
    }
}

void Recovery::end() {
    finish();
    copy_.remove();
}

Recovery::Recovery(CVorl_ADVDoc& document, QWidget& window)
    : document_(document), window_(window), copy_(recoveryFolder()) {
    timer_.setSingleShot(true);
    QObject::connect(&timer_, &QTimer::timeout, &window_, [this] { keep(); });
}

void Recovery::keep() {
    if (document_.IsRunning()) {
        return;
    }
    if (!document_.IsModified()) {
        timer_.stop();
        end();
        keptState_.reset();
        return;
    }
    if (writing_ != nullptr || keptState_ == document_.State()) {
        return;
    }
    if (sinceCopy_.isValid() && sinceCopy_.elapsed() < kMilliseconds) {
        if (!timer_.isActive()) {
            timer_.start(asInt(kMilliseconds - sinceCopy_.elapsed()));
        }
        return;
    }
    sinceCopy_.start();
    begin();
}

void Recovery::begin() {
    writing_.reset(new Writing{document_.GetWorkspace(), document_.OwnFile(), document_.State()});
    const auto write = [this, &writing = *writing_] {
        try {
            copy_.write(writing.workspace, writing.original);
        } catch (const std::bad_alloc&) {
            writing.error = "not enough memory";
        } catch (const std::exception& error) {
            writing.error = error.what();
        }
        writing.ended = true;
        QMetaObject::invokeMethod(
            &window_,
            [this] {
                if (writing_ != nullptr && writing_->ended) {
                    finish();
                    keep();
                }
            },
            Qt::QueuedConnection);
    };
    try {
        writing_->thread = std::thread(write);
    } catch (const std::system_error&) {
        write();
    }
}

void Recovery::finish() {
    if (writing_ == nullptr) {
        return;
    }
    writing_->wait();
    const std::unique_ptr<Writing> written = std::move(writing_);
    if (written->error.empty()) {
        keptState_ = written->state;
        failed_ = false;
    } else if (!std::exchange(failed_, true)) {
        // Said once: the work goes on without a copy.
        report_(QStringLiteral("No recovery copy: ") + QString::fromStdString(utf8Text(written->error)));
    }
}

bool Recovery::offer() {
    for (const RecoveryCopy::LeftBehind& left : RecoveryCopy::leftBehind(recoveryFolder())) {
        const QString name = left.original.path.empty()
                                 ? QStringLiteral("a workspace without a name")
                                 : QString::fromStdString(utf8Text(left.original.path.filename().string()));
        QString question =
            QStringLiteral("Vorlan has ended without saving %1. A copy of %2 was kept.").arg(name, timeText(left.time));
        if (left.isOriginalChanged()) {
            question += QStringLiteral(" %1 itself was changed since; save the copy under another name to keep both.")
                            .arg(name);
        }
        switch (boxes_->askToRecover(&window_, question + QStringLiteral(" Open it?"))) {
            case UserBoxes::RecoverAnswer::Recover:
                if (recover(left)) {
                    return true;
                }
                break;
            case UserBoxes::RecoverAnswer::Discard:
                left.discard();
                break;
            case UserBoxes::RecoverAnswer::Later:
                break;
        }
    }
    return false;
}

bool Recovery::recover(const RecoveryCopy::LeftBehind& left) {
    try {
        document_.RecoverWorkspace(left.copy, left.original);
    } catch (const FileError& error) {
        boxes_->refuse(&window_, QString::fromStdString(utf8Text(error.what())));
        return false;
    }
    keptState_.reset();
    sinceCopy_.invalidate();
    keep();
    finish();
    // Not before there is one of this program.
    if (keptState_) {
        left.discard();
    }
    report_(QStringLiteral("Recovered; save it to keep it"));
    return true;
}

}  // namespace vorlan

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/lines/own_socket.h"

#include "backend/lines/lines_errors.h"

#include <QDir>
#include <QFile>
#include <QThread>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <optional>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int backlog = 64;
constexpr int lockTries = 40;
constexpr unsigned long lockPauseMs = 50;

QString reasonOf(int error) {
    return QString::fromLocal8Bit(std::strerror(error));
}

// A folder that nobody else may look into or write to.
bool isOwnFolder(const QByteArray& folder) {
    struct stat found {};
    return lstat(folder.constData(), &found) == 0 && S_ISDIR(found.st_mode) && found.st_uid == geteuid() &&
           (found.st_mode & (S_IRWXG | S_IRWXO)) == 0;
}

Result<QString> runtimeFolder() {
    const QByteArray given = qgetenv("XDG_RUNTIME_DIR");
    if (given.startsWith('/') && isOwnFolder(given))
        return QFile::decodeName(given);
    const QString made = QDir::temp().filePath(u"wirepane-%1"_s.arg(geteuid()));
    const QByteArray folder = QFile::encodeName(made);
    if (mkdir(folder.constData(), S_IRWXU) != 0 && errno != EEXIST)
        return makeError<lines_errors::folderNotMade>(made, reasonOf(errno));
    if (!isOwnFolder(folder))
        return makeError<lines_errors::folderNotOwn>(made);
    return made;
}

std::optional<sockaddr_un> addressOf(const QByteArray& path) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (std::size_t(path.size()) >= sizeof address.sun_path)
        return std::nullopt;
    std::copy(path.begin(), path.end(), std::begin(address.sun_path));
    return address;
}

int newSocket() {
    return ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
}

bool hasAddress(int socket, const sockaddr_un& address, int (*call)(int, const sockaddr*, socklen_t)) {
    return call(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
}

// Whoever makes or replaces a socket in a folder holds this meanwhile: else two programs that start together
// could each take the other's new socket for a dead one.
class FolderLock {
public:
    explicit FolderLock(const QByteArray& path) {
        const QByteArray folder = path.left(std::max<qsizetype>(path.lastIndexOf('/'), 1));
        file = open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        for (int i = 0; file >= 0 && !held && i < lockTries; ++i) {
            held = flock(file, LOCK_EX | LOCK_NB) == 0;
            if (!held)
                QThread::msleep(lockPauseMs);
        }
    }
    ~FolderLock() {
        if (file >= 0)
            close(file);
    }
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;

    bool isHeld() const { return held; }

private:
    int file = -1;
    bool held = false;
};

// Nothing: what stands there is a socket of this user's that nobody listens on. Else what it is.
std::optional<Error> whyItStays(const QByteArray& path, const sockaddr_un& address) {
    struct stat found {};
    if (lstat(path.constData(), &found) != 0)
        return errno == ENOENT ? std::nullopt
                               : std::optional(makeError<lines_errors::systemSays>(reasonOf(errno)));
    if (!S_ISSOCK(found.st_mode))
        return makeError<lines_errors::noSocket>();
    if (found.st_uid != geteuid())
        return makeError<lines_errors::socketOfOther>();
    const int probe = newSocket();
    // Only a refusal says that nobody listens: a program whose clients all wait answers otherwise.
    const bool isDead = !hasAddress(probe, address, &::connect) && errno == ECONNREFUSED;
    close(probe);
    return isDead ? std::nullopt : std::optional(makeError<lines_errors::socketInUse>());
}

}  // namespace

Result<QString> socketPath(const QString& name) {
    if (name.contains(u'/'))
        return QDir::current().absoluteFilePath(name);
    const Result<QString> folder = runtimeFolder();
    return folder ? Result<QString>(folder.value() + u'/' + name) : folder;
}

bool isOwnPeer(qintptr descriptor) {
    const auto socket = static_cast<int>(descriptor);
#ifdef SO_PEERCRED
    ucred peer{};
    socklen_t size = sizeof peer;
    return getsockopt(socket, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 && peer.uid == geteuid();
#else
    uid_t user = 0;
    gid_t group = 0;
    return getpeereid(socket, &user, &group) == 0 && user == geteuid();
#endif
}

Result<std::unique_ptr<OwnSocket>> OwnSocket::listen(const QString& name) {
    std::unique_ptr<OwnSocket> made(new OwnSocket);
    const Done bound = made->bindTo(QFile::encodeName(name));
    if (!bound)
        return makeError<lines_errors::socketNotOpened>(name, bound.error());
    return made;
}

Done OwnSocket::bindTo(const QByteArray& name) {
    const auto address = addressOf(name);
    if (!address)
        return makeError<lines_errors::pathTooLong>(sizeof address->sun_path - 1);
    const FolderLock lock(name);
    if (!lock.isHeld())
        return makeError<lines_errors::folderHeld>();
    socket = newSocket();
    // Before it has a name, so that nobody finds it open to others.
    if (socket < 0 || fchmod(socket, S_IRUSR | S_IWUSR) != 0)
        return makeError<lines_errors::systemSays>(reasonOf(errno));
    if (!hasAddress(socket, *address, &::bind)) {
        if (errno != EADDRINUSE)
            return makeError<lines_errors::systemSays>(reasonOf(errno));
        if (const auto reason = whyItStays(name, *address))
            return *reason;
        unlink(name.constData());
        if (!hasAddress(socket, *address, &::bind))
            return makeError<lines_errors::systemSays>(reasonOf(errno));
    }
    struct stat made {};
    if (lstat(name.constData(), &made) != 0 || ::listen(socket, backlog) != 0)
        return makeError<lines_errors::systemSays>(reasonOf(errno));
    path = name;
    device = made.st_dev;
    file = made.st_ino;
    return Nothing{};
}

OwnSocket::~OwnSocket() {
    if (!path.isEmpty()) {
        const FolderLock lock(path);
        struct stat found {};
        if (lock.isHeld() && lstat(path.constData(), &found) == 0 && found.st_dev == device &&
            found.st_ino == file)
            unlink(path.constData());
    }
    if (socket >= 0)
        close(socket);
}

OwnSocket::Accepted OwnSocket::accept(int& client) const {
    for (;;) {
        client = ::accept4(socket, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK);
        if (client >= 0 && isOwnPeer(client))
            return Accepted::Client;
        if (client >= 0)
            close(client);
        else if (errno == EAGAIN || errno == EWOULDBLOCK)
            return Accepted::Nobody;
        else if (errno != EINTR && errno != ECONNABORTED)
            return Accepted::Failed;
    }
}

}  // namespace wirepane

// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/sources/keychain.h"

#include "terminal/sources/source_errors.h"

#include <QTimer>
#include <qt6keychain/keychain.h>

#include <chrono>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

// A keychain that is locked asks its user to open it.
constexpr std::chrono::seconds patience{60};

const QString& service() {
    static const QString name = u"org.wirepane.Wirepane"_s;
    return name;
}

Error faultOf(const QKeychain::Job& job) {
    if (job.error() == QKeychain::EntryNotFound)
        return makeError<source_errors::secretMissing>(job.key());
    return makeError<source_errors::keychainFailed>(job.errorString());
}

// Starts the job, which deletes itself. `finished` is told once: of its end, or that it takes too long.
void start(QKeychain::Job* job, const QString& key, const std::function<void(const Error*)>& finished) {
    job->setKey(key);
    auto* waiting = new QTimer(job);
    waiting->setSingleShot(true);
    QObject::connect(waiting, &QTimer::timeout, job, [job, finished] {
        QObject::disconnect(job, &QKeychain::Job::finished, job, nullptr);
        const Error late = makeError<source_errors::keychainSilent>();
        finished(&late);
    });
    QObject::connect(job, &QKeychain::Job::finished, job, [waiting, finished](QKeychain::Job* done) {
        waiting->stop();
        const Error fault = faultOf(*done);
        finished(done->error() == QKeychain::NoError ? nullptr : &fault);
    });
    waiting->start(patience);
    job->start();
}

}  // namespace

void SystemKeychain::read(const QString& key, const std::function<void(const Result<QString>&)>& answer) {
    auto* job = new QKeychain::ReadPasswordJob(service());
    start(job, key, [job, answer](const Error* fault) {
        answer(fault != nullptr ? Result<QString>(*fault) : Result<QString>(job->textData()));
    });
}

void SystemKeychain::write(const QString& key, const QString& secret,
                           const std::function<void(const Done&)>& answer) {
    auto* job = new QKeychain::WritePasswordJob(service());
    job->setTextData(secret);
    start(job, key,
          [answer](const Error* fault) { answer(fault != nullptr ? Done(*fault) : Done(Nothing{})); });
}

void SystemKeychain::remove(const QString& key, const std::function<void(const Done&)>& answer) {
    auto* job = new QKeychain::DeletePasswordJob(service());
    start(job, key, [answer](const Error* fault) {
        const bool isGone = fault == nullptr || fault->code == &source_errors::secretMissing;
        answer(isGone ? Done(Nothing{}) : Done(*fault));
    });
}

}  // namespace wirepane

#pragma once

#include <QSharedMemory>
#include <QString>

// Keeps one hub running per user session through a named shared-memory segment. A later start
// finds the segment, writes a request into it and leaves; the running hub sees the request on
// its next look and comes forward.
class SingleInstance
{
public:
    static constexpr qsizetype kSegmentSize = 1024;
    static constexpr const char* kRaiseRequest = "12345678";
    static constexpr const char* kOrbeKey = "OrbeAudioApp_71A7F2D4-5566-4F99";
    static constexpr const char* kTarnwickKey = "TRWAudioApp_71A7F2D4-5566-4F99";

    explicit SingleInstance(const QString& key);
    ~SingleInstance();

    // Clears a segment that a crashed hub left behind, then makes the segment. False when
    // another hub holds it: that hub has been asked to come forward.
    bool claim();
    // True once for each request a later start wrote; the request is cleared.
    bool takeRaiseRequest();

    bool isClaimed() const { return memory.isAttached(); }
    QString key() const { return memory.key(); }

private:
    // With the segment locked: blanks it and writes text at its start.
    void write(const QByteArray& text);

    QSharedMemory memory;
};

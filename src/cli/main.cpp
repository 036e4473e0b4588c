#include "CliOptions.h"
#include "CliSession.h"

#include <QCoreApplication>
#include <QTextStream>
#include <QTimer>
#include <cstdio>

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    QTextStream out(stdout);
    QTextStream err(stderr);

    CliOptions options;
    QString error;
    if (!CliOptions::parse(app.arguments().mid(1), &options, &error)) {
        err << "orbehub-cli: " << error << " (see orbehub-cli --help)" << Qt::endl;
        return CliSession::BadUsage;
    }
    if (options.help) {
        out << CliOptions::usage() << Qt::flush;
        return CliSession::Done;
    }

    CliSession session(options, out, err);
    // Queued, so that it also works before the event loop has started.
    QObject::connect(
        &session, &CliSession::ended, &app, [](int status) { QCoreApplication::exit(status); },
        Qt::QueuedConnection);
    QTimer::singleShot(0, &session, &CliSession::start);
    return app.exec();
}

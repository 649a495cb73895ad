// Kills sessions of a delivery note's editor at random moments and looks at what the next start finds.
//
//   kill_sweep [MOMENTS [SEED]]

#include "tests/editors/KilledSession.h"

#include <QApplication>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv) {
    const QTemporaryDir state;
    qputenv("XDG_STATE_HOME", state.path().toUtf8());
    qunsetenv("TMPDIR");
    const QApplication application(argc, argv);
    const int moments = argc > 1 ? std::atoi(argv[1]) : 500;
    const unsigned seed = argc > 2 ? static_cast<unsigned>(std::strtoul(argv[2], nullptr, 10)) : 1;
    const KilledSessions sessions = killSessions(moments, seed);
    std::printf(
        "killed at %d random moments of a session (seed %u): %d on work that was left, %d while it opened (%d of "
        "them on left work), %d while it closed; after %d the next start found unsaved work\n",
        sessions.Moments, seed, sessions.OnLeftWork, sessions.WhileOpening, sessions.WhileRestoring,
        sessions.WhileClosing, sessions.WithWork);
    if (!sessions.Failure.empty()) {
        std::printf("torn: %s\n", sessions.Failure.c_str());
        return 1;
    }
    if (moments >= 500 && sessions.WhileRestoring == 0) {
        std::printf("no session was killed while it took up left work: nothing is proved about that\n");
        return 1;
    }
    return 0;
}

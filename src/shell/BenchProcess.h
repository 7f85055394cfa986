#pragma once

#include <QProcess>
#include <QString>

// The virtual validator with its bench panel in a process of its own (tarvik-sim --window), so
// that no window of the program blocks the bench; the program opens its pseudo-terminal as a
// real port. The bench ends with the program: on destruction, when its standard input closes
// as the program dies, and on Linux when the program is killed.
class BenchProcess final
{
public:
    BenchProcess() = default;
    ~BenchProcess();
    Q_DISABLE_COPY_MOVE(BenchProcess)

    // Starts `program` with its line (as --sim-line) and the panel's language code; on failure
    // says why in *error.
    bool start(const QString &program, const QString &line, const QString &language,
               QString *error);
    // The port to open, such as /dev/pts/3.
    const QString &portPath() const { return m_portPath; }
    // tarvik-sim beside this program.
    static QString besideProgram();

private:
    QProcess m_process;
    QString m_portPath;
};

#pragma once

#include <QString>

class QWidget;

// The program's file dialogs, with a seam that tests pre-answer.
class FileDialog final
{
public:
    // An existing file, opened read-only; empty when the user cancelled.
    static QString getOpenFileName(QWidget *parent, const QString &caption, const QString &filter,
                                   const QString &defaultSuffix, const QString &initialName = {});

    // The next dialog returns this name without showing (an empty name: cancelled).
    static void setNextFileName(const QString &fileName);
    static void clearNextFileName();

private:
    FileDialog() = delete;
};

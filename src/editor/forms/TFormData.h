#pragma once

#include <QDialog>
#include <functional>
#include <memory>

class ChannelPages;
class ControlBinder;
class EditorModel;
class EditorServices;
class QBoxLayout;
class QTimer;
class RecordStore;
class TMonnayeur;
class UserPrompt;
class ValidatorLink;
struct Control;

// The validator editor: a thin view over EditorModel. It builds one widget per control of the
// model, named after it, forwards typing, leaving, clicks and picks to the model and shows
// again what the model reports changed.
class TFormData final : public QDialog
{
    Q_OBJECT
public:
    // link may be null: an editor over a file.
    TFormData(UserPrompt &prompt, EditorServices &services, TMonnayeur *link,
              QWidget *parent = nullptr);
    ~TFormData() override;
    Q_DISABLE_COPY_MOVE(TFormData)

    EditorModel &model() { return *m_model; }
    // True once the first activation (and the read it may make) has ended.
    bool hasOpened() const { return m_opened; }

    // Opens the editor on the open link, modal over the main window only so that a window
    // beside it stays usable; it reads the validator once shown, and closes again when that
    // read fails. afterOpeningRead runs once the opening read has ended. records may be null
    // (no tables), backupDirectory empty (no backups).
    static void showModal(ValidatorLink &link, QWidget *mainWindow, UserPrompt &prompt,
                          RecordStore *records = nullptr, const QString &backupDirectory = {},
                          const std::function<void(TFormData &)> &afterOpeningRead = {});

    // Takes the size the form asks for, within the screen.
    void fitScreen();

    // Escape closes the editor as its close button does.
    void reject() override;

Q_SIGNALS:
    // The first activation has ended; readDone is false when its read failed.
    void opened(bool readDone);

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void build();
    QBoxLayout *areaOf(const Control &control) const;
    void activate();
    void settleLayouts();
    void closeWhenIdle();

    std::unique_ptr<EditorModel> m_model;
    ControlBinder *m_binder;
    ChannelPages *m_pages;
    QTimer *m_timer;
    QBoxLayout *m_toolbar;
    QBoxLayout *m_tools;
    QBoxLayout *m_left;
    QBoxLayout *m_middle;
    QBoxLayout *m_right;
    QBoxLayout *m_progress;
    QBoxLayout *m_closeLine;
    bool m_activated = false;
    bool m_opened = false;
    bool m_closeWanted = false;
    bool m_closing = false;
};

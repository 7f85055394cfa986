#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QTimer>

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("Brunfeld"));
    QApplication::setApplicationName(QStringLiteral("Tarvik"));
    QMainWindow window;
    window.setWindowTitle(QStringLiteral("Tarvik"));
    window.setCentralWidget(new QLabel(QStringLiteral("Tarvik"), &window));
    window.show();
    if (QApplication::arguments().contains(QLatin1String("--smoke")))
        QTimer::singleShot(0, &window, &QWidget::close);
    return app.exec();
}

// Draws the pictures (JPEG) and synthesises the sounds (WAV) that the program ships in its
// resources directory. Run it once and commit what it writes:
//   QT_QPA_PLATFORM=offscreen tarvik-make-resources app/resources
#include <QDataStream>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <cmath>
#include <cstdio>
#include <numbers>
#include <vector>

namespace {

bool save(const QImage &image, const QDir &dir, const QString &name)
{
    const bool ok = image.save(dir.filePath(name), "JPG", 92);
    std::printf("%s %s\n", ok ? "wrote" : "FAILED", qPrintable(name));
    return ok;
}

void drawCoin(QPainter &p, QPointF centre, qreal radius, QColor rim, QColor face,
              const QString &label)
{
    QRadialGradient shine(centre - QPointF(radius / 3, radius / 3), radius * 1.4);
    shine.setColorAt(0, face.lighter(150));
    shine.setColorAt(1, face.darker(130));
    p.setPen(QPen(rim.darker(140), 2));
    p.setBrush(rim);
    p.drawEllipse(centre, radius, radius);
    p.setBrush(shine);
    p.drawEllipse(centre, radius * 0.78, radius * 0.78);
    QFont font = p.font();
    font.setBold(true);
    font.setPixelSize(int(radius * 0.8));
    p.setFont(font);
    p.setPen(face.darker(200));
    p.drawText(QRectF(centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius),
               Qt::AlignCenter, label);
}

QImage mainPicture()
{
    QImage image(440, 230, QImage::Format_RGB32);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    QLinearGradient sky(0, 0, 0, image.height());
    sky.setColorAt(0, QColor(28, 62, 110));
    sky.setColorAt(1, QColor(12, 24, 48));
    p.fillRect(image.rect(), sky);

    // The validator: a front plate with its coin slot, return button and reject cup.
    const QRectF plate(40, 30, 150, 175);
    QLinearGradient steel(plate.topLeft(), plate.topRight());
    steel.setColorAt(0, QColor(150, 156, 166));
    steel.setColorAt(0.5, QColor(226, 230, 236));
    steel.setColorAt(1, QColor(130, 136, 146));
    p.setPen(QPen(QColor(60, 64, 72), 2));
    p.setBrush(steel);
    p.drawRoundedRect(plate, 10, 10);
    p.setBrush(QColor(25, 25, 28));
    p.drawRoundedRect(QRectF(plate.center().x() - 6, plate.top() + 22, 12, 52), 5, 5);
    p.setBrush(QColor(190, 40, 40));
    p.drawEllipse(QPointF(plate.center().x(), plate.top() + 100), 13, 13);
    p.setBrush(QColor(40, 42, 48));
    p.drawRoundedRect(QRectF(plate.left() + 35, plate.bottom() - 45, 80, 30), 6, 6);
    p.setBrush(QColor(90, 220, 120));
    p.setPen(Qt::NoPen);
    p.drawEllipse(QPointF(plate.right() - 18, plate.top() + 16), 5, 5);

    drawCoin(p, QPointF(115, 18), 16, QColor(200, 160, 50), QColor(230, 200, 90),
             QStringLiteral("2"));
    drawCoin(p, QPointF(232, 170), 26, QColor(170, 170, 176), QColor(220, 190, 80),
             QStringLiteral("1"));
    drawCoin(p, QPointF(290, 186), 20, QColor(200, 160, 50), QColor(236, 210, 110),
             QStringLiteral("50"));

    QFont title = p.font();
    title.setBold(true);
    title.setPixelSize(54);
    p.setFont(title);
    p.setPen(QColor(240, 244, 250));
    p.drawText(QRectF(210, 40, 220, 70), Qt::AlignLeft | Qt::AlignVCenter,
               QStringLiteral("Tarvik"));
    QFont sub = p.font();
    sub.setBold(false);
    sub.setPixelSize(17);
    p.setFont(sub);
    p.setPen(QColor(170, 196, 230));
    p.drawText(QRectF(212, 108, 220, 24), Qt::AlignLeft, QStringLiteral("VK2 coin validators"));
    p.drawText(QRectF(212, 130, 220, 24), Qt::AlignLeft, QStringLiteral("programming bench"));
    return image;
}

QImage flag(const QString &code)
{
    QImage image(48, 32, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    const int w = image.width(), h = image.height();
    auto vertical = [&](QColor a, QColor b, QColor c) {
        p.fillRect(0, 0, w / 3, h, a);
        p.fillRect(w / 3, 0, w - 2 * (w / 3), h, b);
        p.fillRect(w - w / 3, 0, w / 3, h, c);
    };
    if (code == u"FR") {
        vertical(QColor(0, 35, 149), Qt::white, QColor(237, 41, 57));
    } else if (code == u"IT") {
        vertical(QColor(0, 146, 70), Qt::white, QColor(206, 43, 55));
    } else if (code == u"DE") {
        p.fillRect(0, 0, w, h / 3, Qt::black);
        p.fillRect(0, h / 3, w, h - 2 * (h / 3), QColor(221, 0, 0));
        p.fillRect(0, h - h / 3, w, h / 3, QColor(255, 206, 0));
    } else if (code == u"EN") {
        p.fillRect(image.rect(), QColor(1, 33, 105));
        p.setPen(QPen(Qt::white, 7));
        p.drawLine(0, 0, w, h);
        p.drawLine(0, h, w, 0);
        p.setPen(QPen(QColor(200, 16, 46), 2.5));
        p.drawLine(0, 0, w, h);
        p.drawLine(0, h, w, 0);
        p.fillRect(w / 2 - 5, 0, 10, h, Qt::white);
        p.fillRect(0, h / 2 - 5, w, 10, Qt::white);
        p.fillRect(w / 2 - 3, 0, 6, h, QColor(200, 16, 46));
        p.fillRect(0, h / 2 - 3, w, 6, QColor(200, 16, 46));
    } else {
        // Local: a globe.
        p.fillRect(image.rect(), QColor(236, 240, 246));
        const QPointF c(w / 2.0, h / 2.0);
        p.setPen(QPen(QColor(30, 90, 160), 1.5));
        p.setBrush(QColor(120, 180, 230));
        p.drawEllipse(c, 13, 13);
        p.setBrush(Qt::NoBrush);
        p.drawEllipse(c, 6, 13);
        p.drawLine(QPointF(c.x() - 13, c.y()), QPointF(c.x() + 13, c.y()));
        p.drawLine(QPointF(c.x(), c.y() - 13), QPointF(c.x(), c.y() + 13));
    }
    p.setPen(QPen(QColor(80, 80, 80), 1));
    p.setBrush(Qt::NoBrush);
    p.drawRect(image.rect().adjusted(0, 0, -1, -1));
    return image;
}

QImage portPicture()
{
    // A nine-pin serial connector.
    QImage image(72, 56, QImage::Format_RGB32);
    image.fill(QColor(240, 240, 240));
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    QPainterPath shell;
    shell.moveTo(6, 12);
    shell.lineTo(66, 12);
    shell.lineTo(60, 44);
    shell.lineTo(12, 44);
    shell.closeSubpath();
    p.setPen(QPen(QColor(70, 70, 80), 2));
    p.setBrush(QColor(170, 176, 186));
    p.drawPath(shell);
    p.setBrush(QColor(220, 190, 80));
    p.setPen(QPen(QColor(120, 90, 20), 1));
    for (int i = 0; i < 5; ++i)
        p.drawEllipse(QPointF(16 + i * 10, 22), 3, 3);
    for (int i = 0; i < 4; ++i)
        p.drawEllipse(QPointF(21 + i * 10, 34), 3, 3);
    return image;
}

// 16-bit mono PCM.
bool saveWav(const QDir &dir, const QString &name, const std::vector<qint16> &samples, int rate)
{
    QFile file(dir.filePath(name));
    if (!file.open(QIODevice::WriteOnly))
        return false;
    QDataStream out(&file);
    out.setByteOrder(QDataStream::LittleEndian);
    const quint32 dataBytes = quint32(samples.size() * 2);
    out.writeRawData("RIFF", 4);
    out << quint32(36 + dataBytes);
    out.writeRawData("WAVEfmt ", 8);
    out << quint32(16) << quint16(1) << quint16(1) << quint32(rate) << quint32(rate * 2)
        << quint16(2) << quint16(16);
    out.writeRawData("data", 4);
    out << dataBytes;
    for (qint16 s : samples)
        out << s;
    std::printf("wrote %s\n", qPrintable(name));
    return out.status() == QDataStream::Ok;
}

// Bell-like partials with an exponential decay.
void addBell(std::vector<qint16> &samples, int rate, double start, double frequency, double length,
             double level)
{
    const double partials[][2] = {{1.0, 1.0}, {2.76, 0.45}, {5.4, 0.25}, {8.93, 0.12}};
    const int first = int(start * rate);
    const int count = int(length * rate);
    if (samples.size() < size_t(first + count))
        samples.resize(size_t(first + count), 0);
    for (int i = 0; i < count; ++i) {
        const double t = double(i) / rate;
        double v = 0;
        for (const auto &partial : partials)
            v += partial[1] * std::sin(2 * std::numbers::pi * frequency * partial[0] * t) *
                 std::exp(-t * 3.0 * partial[0]);
        const double attack = std::min(1.0, t / 0.004);
        const double mixed = samples[size_t(first + i)] + level * 32767 * attack * v / 1.8;
        samples[size_t(first + i)] = qint16(std::clamp(mixed, -32767.0, 32767.0));
    }
}

} // namespace

int main(int argc, char *argv[])
{
    QGuiApplication app(argc, argv);
    const QDir dir(argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral("."));
    bool ok = save(mainPicture(), dir, QStringLiteral("Tarvik.jpg"));
    for (const char *code : {"FR", "IT", "EN", "DE"})
        ok &= save(flag(QLatin1String(code)), dir,
                   QStringLiteral("Flag%1.jpg").arg(QLatin1String(code)));
    ok &= save(flag(QString()), dir, QStringLiteral("FlagLocal.jpg"));
    ok &= save(portPicture(), dir, QStringLiteral("Port.jpg"));

    const int rate = 22050;
    std::vector<qint16> chimes;
    addBell(chimes, rate, 0.00, 659.25, 1.2, 0.55); // E5
    addBell(chimes, rate, 0.22, 523.25, 1.2, 0.55); // C5
    addBell(chimes, rate, 0.44, 783.99, 1.4, 0.60); // G5
    ok &= saveWav(dir, QStringLiteral("Chimes.Wav"), chimes, rate);
    std::vector<qint16> coin;
    addBell(coin, rate, 0.00, 2093.0, 0.30, 0.50);
    addBell(coin, rate, 0.06, 2637.0, 0.25, 0.35);
    ok &= saveWav(dir, QStringLiteral("Coin.Wav"), coin, rate);
    return ok ? 0 : 1;
}

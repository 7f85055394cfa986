#pragma once

#include "Learning.h"

#include <QString>
#include <optional>

// One learned channel as the coin learning form exports and imports it: the seven windows in
// measurement order, the substitute, the value as shown, the enable flag and the fourteen
// margins. The file is a small JSON object (docs/learned-channel.md).
struct LearnedChannel
{
    Windows windows{};
    int substitute = 0; // 0..31
    QString value;      // the amount as the value box shows it ("0.50", "  -P1-", empty)
    bool enabled = true;
    Tolerances tolerances;
    bool operator==(const LearnedChannel &) const = default;
};

namespace LearnedChannelFile {

inline constexpr const char *kFormat = "tarvik-learned-channel";
inline constexpr int kVersion = 1;

QByteArray toJson(const LearnedChannel &channel);
// Nothing when the text is not such a file or a number lies outside its range.
std::optional<LearnedChannel> fromJson(const QByteArray &json);

// Writes the file whole or not at all; false with the reason in *error.
bool save(const QString &fileName, const LearnedChannel &channel, QString *error);
std::optional<LearnedChannel> load(const QString &fileName);

} // namespace LearnedChannelFile

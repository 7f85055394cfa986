// libFuzzer target for the editor model: an input is a sequence of what a person does at the
// form (type into a box, leave it, click a control, pick an item), each action chosen by the
// input's bytes. After every action the image must still be one the validator can take: the
// enable bitmap keeps its four missing channels set and each record's value copy follows the
// value block.
#include "EditorModel.h"
#include "EditorServices.h"
#include "VirtualValidator.h"

#include <cstdint>
#include <cstdlib>

namespace {

const char *const kTexts[] = {"",    "  ",   "0",    "1",     "44",        "255",   "300",
                              "-1",  "abc",  "0.05", "1.50",  "-P1-",      " -p2-", "999999999999",
                              "1e3", "12 3", "0,5",  "65535", "4294967296"};

void check(const EditorModel &model)
{
    const ConfigImage &image = model.image();
    if ((image.enable[0] & 0xF0) != 0xF0)
        std::abort();
    for (int k = 0; k < kChannels; ++k) {
        const ChannelRecord &record = image.channels[std::size_t(k)];
        if (record[Rec::Enabled] > 1 || record[Rec::Value] != image.valueByte(k))
            std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const ConfigImage factory = VirtualValidator::factoryImage(0x13, 1001);
    static DefaultEditorServices services;
    // One model for every input, as one editor serves a long day: each input starts from a
    // freshly loaded image.
    static EditorModel model(nullptr, &services, nullptr);
    static const QStringList names = model.controlNames();
    model.loadImage(factory, false);
    for (size_t i = 0; i + 3 <= size; i += 3) {
        const QString &name = names.at((data[i] << 8 | data[i + 1]) % names.size());
        const uint8_t how = data[i + 2];
        switch (how % 4) {
        case 0:
            model.type(name, QString::fromLatin1(kTexts[(how / 4) % std::size(kTexts)]));
            break;
        case 1:
            model.leave(name);
            break;
        case 2:
            model.click(name);
            break;
        default:
            model.pick(name, how / 4 % 9);
            break;
        }
        check(model);
    }
    model.EHFUBMIN0Exit();
    check(model);
    return 0;
}

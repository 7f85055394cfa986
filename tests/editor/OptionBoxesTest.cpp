// Every option box against its bit, under every output type: which boxes show, which byte and
// bit a click turns over, and that no click changes the output type.
#include "EditorModel.h"
#include "EditorServices.h"
#include "Encodings.h"
#include "RecordingPrompt.h"
#include "VirtualValidator.h"

#include <gtest/gtest.h>
#include <initializer_list>

namespace {

struct Editor
{
    // Serial 1001 has firmware of July 2002, which shows every box; 1002 has 26 March 2002.
    explicit Editor(quint32 serial = 1001, OptionWord options = {})
    {
        setEncodingSettings(EncodingSettings{u'.', u'/', 1});
        ConfigImage image = VirtualValidator::factoryImage(0x13, serial);
        if (options != OptionWord{})
            image.options = options;
        model.loadImage(image, false);
    }
    const ControlState &box(const char *name) const { return model.control(QLatin1String(name)); }
    OptionWord word() const { return model.image().options; }

    RecordingPrompt prompt;
    DefaultEditorServices services;
    EditorModel model{&prompt, &services};
};

struct Box
{
    const char *name;
    int byte;
    quint8 mask;
    std::initializer_list<int> types; // the output types under which the box shows
    const char *follows = nullptr;    // runs the handler of this box, which decides the bit
    const char *needs = nullptr;      // enabled only while this box is checked
};

// All boxes are active low: checked means the bit is 0.
const Box kBoxes[] = {
    {"ChkBinaire", 0, 0x01, {0}},
    {"ChkStandby", 0, 0x01, {2, 3, 6, 7}, "ChkBinaire"},
    {"ChkResetEx", 0, 0x01, {1, 4}},
    {"ChkConfida", 0, 0x02, {0}, nullptr, "ChkBinaire"},
    {"ChkRecup", 0, 0x02, {1, 3}},
    {"ChkActEx", 0, 0x02, {2, 4, 6, 7}},
    {"ChkSeparateur", 0, 0x04, {0}},
    {"ChkInibhition", 0, 0x08, {0}},
    {"CheckBox5", 0, 0x10, {0}},
    {"ChkLimit1", 0, 0x10, {1}},
    {"ChkCounterEX", 0, 0x10, {2, 3}},
    {"ChkLimit2", 0, 0x20, {1}},
    {"ChkTime", 0, 0x20, {3}},
    {"ChkResetL8", 0, 0x40, {0}},
    {"ChkTmpDsp", 0, 0x40, {1, 2, 3, 4, 6, 7}},
    {"ChkDip", 0, 0x80, {0}},
    {"CheckBox4", 0, 0x80, {0}},
    {"ChkDecompte", 0, 0x80, {1, 2, 3, 4, 6, 7}, "ChkDip"},
    {"ChkAfficheur", 1, 0x80, {2, 3, 4, 6, 7}},
    {"ChkLimit", 1, 0x80, {1}},
};

} // namespace

TEST(OptionBoxes, EachBoxShowsUnderItsTypesAndTurnsOverItsOwnBitOnly)
{
    for (int type : {0, 1, 2, 3, 4, 6, 7}) {
        for (const Box &b : kBoxes) {
            SCOPED_TRACE(std::string(b.name) + " under type " + std::to_string(type));
            Editor e;
            if (type != 0) {
                ASSERT_TRUE(e.model.pick(QStringLiteral("GroupType"), type));
            }
            const bool shows = std::find(b.types.begin(), b.types.end(), type) != b.types.end();
            ASSERT_EQ(e.box(b.name).visible, shows);
            if (!shows)
                continue;
            if (b.needs) {
                ASSERT_TRUE(e.model.click(QLatin1String(b.needs)));
            }
            const OptionWord before = e.word();
            const bool wasChecked = e.box(b.name).checked;
            ASSERT_EQ(wasChecked, !(before[std::size_t(b.byte)] & b.mask));

            QString error;
            ASSERT_TRUE(e.model.click(QLatin1String(b.name), &error)) << error.toStdString();
            OptionWord expected = before;
            if (!b.follows)
                expected[std::size_t(b.byte)] ^= b.mask;
            EXPECT_EQ(e.word(), expected);
            EXPECT_EQ(e.box(b.name).checked, b.follows ? wasChecked : !wasChecked);
            EXPECT_EQ(e.model.control(QStringLiteral("GroupType")).itemIndex, type);
        }
    }
}

TEST(OptionBoxes, BinaryOutputGivenUpForTheSeparatorTakesConfidaWithIt)
{
    // Binary output with Confida, separator off: checking "Separator" on firmware of 26 March
    // 2002 unchecks "Binary output", and "Confida" with it.
    Editor old(1002, {0xFC, 0xC7});
    ASSERT_TRUE(old.box("ChkConfida").checked && old.box("ChkConfida").enabled);
    ASSERT_TRUE(old.model.click(QStringLiteral("ChkSeparateur")));
    EXPECT_EQ(old.word(), (OptionWord{0xFB, 0xC7}));
    EXPECT_FALSE(old.box("ChkBinaire").checked);
    EXPECT_FALSE(old.box("ChkConfida").checked);
    EXPECT_FALSE(old.box("ChkConfida").enabled);

    // Later firmware keeps all three.
    Editor later(1001, {0xFC, 0xC7});
    ASSERT_TRUE(later.model.click(QStringLiteral("ChkSeparateur")));
    EXPECT_EQ(later.word(), (OptionWord{0xF8, 0xC7}));

    // Unchecking "Binary output" by hand does the same.
    ASSERT_TRUE(later.model.click(QStringLiteral("ChkBinaire")));
    EXPECT_EQ(later.word(), (OptionWord{0xFB, 0xC7}));
}

// The coin profile form without its window: value and tolerance normalising, saving, opening
// and handing a profile to the coin learning form.
#include "ProfilCModel.h"
#include "ConfigImage.h"
#include "DbfTable.h"
#include "ProfileStore.h"
#include "RecordingPrompt.h"
#include "TDBModule.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

// Base 1 is 0.25 (25 with two decimals), base 2 is 1.0 (10 with one decimal).
ConfigImage imageWithBases()
{
    ConfigImage image = ConfigImage::blank();
    image.values[Val::Base1] = 0x40;
    image.values[Val::Base1 + 1] = 25;
    image.values[Val::Base2] = 0x80;
    image.values[Val::Base2 + 1] = 10;
    return image;
}

class ProfilCModelTest : public ::testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(db.open(dir.path())); }

    std::unique_ptr<ProfilCModel> form(int channel)
    {
        return std::make_unique<ProfilCModel>(store, &prompt, channel, imageWithBases());
    }
    static QString text(const ProfilCModel &m, const QString &name) { return m.control(name).text; }
    static QString row(int r) { return ProfilCModel::toleranceName(r); }

    QTemporaryDir dir;
    TDBModule db;
    RecordingPrompt prompt{UserPrompt::Answer::No};
    ProfileStore store{db, prompt};
};

} // namespace

TEST_F(ProfilCModelTest, TheValueIsNormalisedInTheBaseOfTheLearningChannel)
{
    auto low = form(30);
    low->pick(QStringLiteral("RadioPriceLine"), 1);
    EXPECT_EQ(text(*low, QStringLiteral("EditValue")), QLatin1String("  -P2-"));
    low->type(QStringLiteral("EditValue"), QStringLiteral("0.6"));
    EXPECT_EQ(low->control(QStringLiteral("RadioPriceLine")).itemIndex, -1);
    low->leave(QStringLiteral("EditValue"));
    EXPECT_EQ(text(*low, QStringLiteral("EditValue")), QLatin1String("  0.50"));
    low->leave(QStringLiteral("EditValue")); // unchanged since: nothing to do
    EXPECT_TRUE(prompt.all().isEmpty());

    auto high = form(31);
    high->type(QStringLiteral("EditValue"), QStringLiteral("3"));
    high->leave(QStringLiteral("EditValue"));
    EXPECT_EQ(text(*high, QStringLiteral("EditValue")), QLatin1String("   3.0"));
    high->type(QStringLiteral("EditValue"), QStringLiteral("two"));
    high->leave(QStringLiteral("EditValue"));
    EXPECT_EQ(prompt.told(), QStringList{QStringLiteral("Value must be between 0 and 255")});
    EXPECT_TRUE(text(*high, QStringLiteral("EditValue")).isEmpty());

    // Past 252 steps of the base: held at the largest, said, and the tip gives both.
    prompt.clear();
    EXPECT_TRUE(
        high->control(QStringLiteral("EditValue"))
            .toolTip.startsWith(QStringLiteral("An amount in steps of 1.0, at most 252.0")));
    high->type(QStringLiteral("EditValue"), QStringLiteral("5000"));
    high->leave(QStringLiteral("EditValue"));
    EXPECT_EQ(prompt.told(), QStringList{messageText(Msg::ValueOverMaximum)});
    EXPECT_EQ(text(*high, QStringLiteral("EditValue")), QLatin1String(" 252.0"));
}

TEST_F(ProfilCModelTest, TheToleranceGridIsNormalisedToSevenColumns)
{
    auto m = form(1);
    EXPECT_EQ(text(*m, ProfilCModel::toleranceKeyName(3)), QLatin1String("Hfu high max."));
    EXPECT_EQ(text(*m, row(4)), QLatin1String("      1"));
    m->type(row(2), QStringLiteral("  12"));
    m->type(row(5), QStringLiteral(" 9"));
    m->leave(row(2)); // leaving a row normalises that row only
    EXPECT_EQ(text(*m, row(2)), QLatin1String("     12"));
    EXPECT_EQ(text(*m, row(5)), QLatin1String(" 9"));

    m->type(row(0), QStringLiteral("300 "));
    m->type(row(1), QStringLiteral("x1"));
    m->GridTolerancesClick(); // every row, up to the first that is not an integer
    EXPECT_EQ(text(*m, row(0)), QLatin1String("    300"));
    EXPECT_EQ(text(*m, row(1)), QLatin1String("x1"));
    EXPECT_EQ(text(*m, row(5)), QLatin1String(" 9"));
    EXPECT_EQ(prompt.told(), QStringList{QStringLiteral("'x1' is not a valid integer value")});
}

TEST_F(ProfilCModelTest, ANonIntegerTolerancePostsNothing)
{
    auto m = form(1);
    m->type(QStringLiteral("EditName"), QStringLiteral("Euro"));
    m->type(row(13), QStringLiteral("1.5"));
    m->click(QStringLiteral("BtnSave"));
    EXPECT_EQ(prompt.told(), QStringList{QStringLiteral("'1.5' is not a valid integer value")});
    EXPECT_EQ(db.DemTable()->recordCount(), 0);
    EXPECT_FALSE(db.DemTable()->hasPendingChanges());
    m->click(QStringLiteral("BtnExit")); // nor is anything handed over
    EXPECT_FALSE(m->closed());
    EXPECT_FALSE(m->result());
}

TEST_F(ProfilCModelTest, ASavedProfileOpensAgainAndIsHandedOver)
{
    auto m = form(2);
    m->type(QStringLiteral("EditName"), QStringLiteral(" Token "));
    m->type(QStringLiteral("EditDescription"), QStringLiteral("brass"));
    m->type(QStringLiteral("SpinSub"), QStringLiteral("12"));
    m->click(QStringLiteral("CheckEnable"));
    m->type(QStringLiteral("EditValue"), QStringLiteral("1"));
    m->type(row(0), QStringLiteral("300"));
    m->click(QStringLiteral("BtnSave"));
    ASSERT_EQ(m->control(QStringLiteral("GridProfiles")).items,
              QStringList{QStringLiteral("Token")});
    EXPECT_EQ(m->profileDescription(0), QLatin1String("brass"));
    const auto stored = store.load(QStringLiteral("token"));
    ASSERT_TRUE(stored);
    EXPECT_EQ(stored->value, 4); // 1.00 in the base of 0.25
    EXPECT_EQ(stored->tolerances[0], 300);
    EXPECT_FALSE(stored->enabled);

    auto other = form(2);
    EXPECT_TRUE(other->control(QStringLiteral("CheckEnable")).checked);
    other->pick(QStringLiteral("GridProfiles"), 0);
    other->click(QStringLiteral("BtnOpen"));
    EXPECT_EQ(text(*other, QStringLiteral("EditName")), QLatin1String("Token"));
    EXPECT_EQ(text(*other, QStringLiteral("SpinSub")), QLatin1String("12"));
    EXPECT_FALSE(other->control(QStringLiteral("CheckEnable")).checked);
    EXPECT_EQ(text(*other, QStringLiteral("EditValue")), QLatin1String("  1.00"));
    EXPECT_EQ(text(*other, row(0)), QLatin1String("    300"));
    EXPECT_EQ(text(*other, row(13)), QLatin1String("      8"));

    other->pick(QStringLiteral("RadioPriceLine"), 0);
    other->click(QStringLiteral("BtnExit"));
    ASSERT_TRUE(other->closed());
    ASSERT_TRUE(other->result());
    const CoinProfile &handed = *other->result();
    EXPECT_EQ(handed.name, QLatin1String("Token"));
    EXPECT_EQ(handed.description, QLatin1String("brass"));
    EXPECT_EQ(handed.substitute, 12);
    EXPECT_EQ(handed.priceLine, 0);
    EXPECT_EQ(handed.value.trimmed(), QLatin1String("-P1-"));
    Tolerances expected;
    expected.values[0] = 44; // the low eight bits of 300
    EXPECT_EQ(handed.tolerances, expected);
    EXPECT_TRUE(prompt.all().isEmpty());
}

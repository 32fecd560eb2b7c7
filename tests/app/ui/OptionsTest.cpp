#include "app/Settings.h"
#include "app/ui/CGammaSettingsDialog.h"
#include "framework/ui/ColorPrompt.h"
#include "res/ControlIds.h"
#include "support/ui/TavloViewFixture.h"

namespace keltavlo {

struct OptionsTest : TavloViewFixture {
    void RunOptions(QDialogButtonBox::StandardButton button, const std::function<void(QDialog&)>& whatToDo) {
        const DialogAnswer answer([&](QDialog& sheet) {
            sheet.findChild<QTabWidget*>()->setCurrentIndex(1);
            whatToDo(sheet);
            Press(sheet, button);
        });
        EXPECT_TRUE(Send(ID_TOOLS_OPTIONS));
    }
    static void RunGamma(QDialog& sheet, const std::function<void(CGammaSettingsDialog&)>& whatToDo) {
        const DialogAnswer answer(
            [&](QDialog& dialog) { whatToDo(dynamic_cast<CGammaSettingsDialog&>(dialog)); });
        QTest::keyClick(&FindButton(sheet, "&Gamma Settings..."), Qt::Key_Space);
    }
    static bool IsApplyEnabled(QDialog& sheet) {
        return sheet.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Apply)->isEnabled();
    }
    static QSlider& Slider(CGammaSettingsDialog& dialog, unsigned id) {
        return dynamic_cast<QSlider&>(dialog.GetDlgItem(id));
    }
    GammaSettings& Gamma() { return GetMainFrame().GetGamma(); }
};

TEST_F(OptionsTest, GammaIsChosenWithLinkedSlidersAndShownAtOnce) {
    RunOptions(QDialogButtonBox::Ok, [](QDialog& sheet) {
        RunGamma(sheet, [](CGammaSettingsDialog& dialog) {
            QCoreApplication::processEvents();
            const EventSpy painted(dialog.GetDlgItem(IDC_SAMPLE_RGB));
            for (int i = 0; i < 10; ++i) QTest::keyClick(&Slider(dialog, IDC_SLIDER_RED), Qt::Key_Right);
            EXPECT_EQ(Slider(dialog, IDC_SLIDER_BLUE).value(), 40);
            EXPECT_EQ(dynamic_cast<QLabel&>(dialog.GetDlgItem(IDC_GAMMA_VALUE)).text(), "2.00");
            QCoreApplication::processEvents();
            EXPECT_FALSE(painted.region.isEmpty());
            const QImage sample = dialog.GetDlgItem(IDC_SAMPLE_RGB).grab().toImage();
            for (const QPoint& place : {QPoint(32, 0), QPoint(95, 31)})
                EXPECT_EQ(sample.pixel(place), 0xFFB5B5B5U) << "128 at gamma 2 is 181";
            EXPECT_EQ(sample.pixel(1, 0), 0xFFFFFFFFU);
            EXPECT_EQ(sample.pixel(0, 0), 0xFF000000U);
            EXPECT_EQ(sample.size(), QSize(96, 32));
            dialog.accept();
        });
        EXPECT_TRUE(IsApplyEnabled(sheet));
    });
    EXPECT_EQ(Gamma().GetValues(), (GammaValues{2, 2, 2}));
}

TEST_F(OptionsTest, UnlinkedSlidersDifferAndApplyKeepsTheSheet) {
    RunOptions(QDialogButtonBox::Cancel, [&](QDialog& sheet) {
        RunGamma(sheet, [](CGammaSettingsDialog& dialog) {
            dynamic_cast<QCheckBox&>(dialog.GetDlgItem(IDC_LINK_CONTROLS)).click();
            QTest::keyClick(&Slider(dialog, IDC_SLIDER_RED), Qt::Key_End);
            QTest::keyClick(&Slider(dialog, IDC_SLIDER_BLUE), Qt::Key_PageUp);
            dialog.accept();
        });
        QCoreApplication::processEvents();
        const EventSpy painted(*view);
        Press(sheet, QDialogButtonBox::Apply);
        QCoreApplication::processEvents();
        EXPECT_FALSE(painted.region.isEmpty());
        EXPECT_FALSE(IsApplyEnabled(sheet));
        EXPECT_EQ(Gamma().GetValues(), (GammaValues{5, 1, 2}));
        EXPECT_EQ(ColorShownAt(5, 5), ApplyGamma({5, 1, 2}, GetTexture().GetPixel(5, 5)));
    });
    EXPECT_EQ(Gamma().GetValues(), (GammaValues{5, 1, 2}));
}

TEST_F(OptionsTest, OnlyADifferenceMarksThePage) {
    Gamma().SetValues({1.23, 1, 1});
    RunOptions(QDialogButtonBox::Ok, [](QDialog& sheet) {
        RunGamma(sheet, [](CGammaSettingsDialog& dialog) {
            Slider(dialog, IDC_SLIDER_RED).setValue(77);
            dialog.reject();
        });
        EXPECT_FALSE(IsApplyEnabled(sheet));
        RunGamma(sheet, [](CGammaSettingsDialog& dialog) { dialog.accept(); });
        EXPECT_TRUE(IsApplyEnabled(sheet)) << "values between the positions come back rounded";
    });
    EXPECT_EQ(Gamma().GetValues(), (GammaValues{1.25, 1, 1}));
}

TEST_F(OptionsTest, GammaAndColorsOutliveTheProgram) {
    Gamma().SetValues({0.33333, 1.5, 0});
    GetMainFrame().close();
    CustomColors older{}, newer{};
    newer.front() = newer.back() = 0x00332211;
    WriteCustomColors(program.GetProfile(), applicationSection, older);
    WriteCustomColors(program.GetProfile(), mainSection, newer); // read last
    {
        CKelTavloApp next(ProfileStore(PathTo("settings.ini")));
        Start(next);
        EXPECT_EQ(next.GetMainFrame()->GetGamma().GetValues(), (GammaValues{0.3333, 1.5, 0}));
        EXPECT_EQ(GetCustomColors(), newer);
        SetCustomColors(older);
        next.GetMainFrame()->close();
        EXPECT_EQ(ReadCustomColors(next.GetProfile(), mainSection), older);
        SetCustomColors(newer);
    }
    const ProfileStore written(PathTo("settings.ini"));
    EXPECT_EQ(ReadCustomColors(written, applicationSection), newer);
}

} // namespace keltavlo

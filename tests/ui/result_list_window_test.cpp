// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QPrintDialog>
#include <QPrinter>

#include "text/text_file.h"
#include "ui/calc/result_list_printer.h"
#include "ui/ui_fixture.h"

namespace orva::test {
namespace {

struct ResultListWindow : Workbench {
    frmCalcOut* output = nullptr;

    void SetUp() override {
        Workbench::SetUp();
        AcceptModels("n-Butan");
        dialogs.fileRequests.clear(); // that of the database
    }

    void UseSeries(std::initializer_list<std::pair<double, double>> points) {
        session->options.batchMode = true;
        session->batch.rows.resize(1);
        for (const auto& [T, p] : points) {
            BatchRow row;
            row.T = T;
            row.p = p;
            session->batch.rows.push_back(row);
        }
        session->state.batchRowCount = static_cast<std::int16_t>(points.size());
    }

    void Open(const char* command) {
        Choose("mnuCalcMain", command);
        output = Wait<frmCalcOut>();
        ASSERT_NE(output, nullptr);
    }

    QRadioButton* Option(int number) const {
        return In<QRadioButton>(output, qPrintable(QStringLiteral("optResultPrint(%1)").arg(number)));
    }

    std::filesystem::path ListFile() const { return machine.WritableFolder() / "butan.LST"; }

    QStringList WrittenLines() const {
        return QString::fromLatin1(QByteArray::fromStdString(ReadFile(ListFile()).value_or("")))
            .split("\r\n");
    }
};

TEST_F(ResultListWindow, OffersTheListForADataSeriesOnly) {
    UseSeries({{300, 100}});
    Open("mnuCalc(2)");
    EXPECT_TRUE(In<QGroupBox>(output, "fraResultOutput")->isVisible());
    EXPECT_TRUE(Option(0)->isChecked());
    EXPECT_EQ(In<QPushButton>(output, "cmdCalc_OK")->text(), "Beenden (+Ausgabe)");
}

TEST_F(ResultListWindow, WithoutAChoiceNothingIsWritten) {
    UseSeries({{300, 100}});
    Open("mnuCalc(2)");
    ClickButton(output, "cmdCalc_OK");
    EXPECT_EQ(Find<frmCalcOut>(), nullptr);
    EXPECT_TRUE(dialogs.fileRequests.empty());
}

TEST_F(ResultListWindow, WritesWhatWasSteppedThrough) {
    UseSeries({{300, 100}, {0, 100}, {310, 100}, {320, 100}});
    Open("mnuCalc(2)");
    ClickButton(output, "cmdVor"); // no T: fails
    ClickButton(output, "cmdVor");
    Click(Option(2));
    dialogs.files.emplace_back(ListFile().string());
    ClickButton(output, "cmdCalc_OK");
    ASSERT_EQ(dialogs.fileRequests.size(), 1U);
    EXPECT_EQ(dialogs.fileRequests[0].title, "ORVA-Ergebnisliste speichern unter ...");
    EXPECT_EQ(dialogs.fileRequests[0].filter, "Ergebnis-Datei (*.LST)|*.LST");
    EXPECT_EQ(dialogs.fileRequests[0].defaultExtension, ".LST");
    EXPECT_TRUE(dialogs.fileRequests[0].saving);
    EXPECT_EQ(Find<frmCalcOut>(), nullptr);
    EXPECT_TRUE(dialogs.shown.empty());
    const QStringList lines = WrittenLines();
    ASSERT_GT(lines.size(), 20);
    EXPECT_EQ(lines[0], QString(59, ' ') + "21.11.2026");
    EXPECT_EQ(lines[3], "   Substance            : n-Butan");
    EXPECT_EQ(lines[4], "   Calculation          :  T, p => rho");
    EXPECT_EQ(lines[5], "   model                : CEOS Peng / Robinson; Wagner");
    EXPECT_EQ(lines[6], "   Number of Data Sets  : 4");
    QStringList numbers;
    for (const QString& line : lines.mid(14))
        if (line.startsWith(u' ') && line.size() > 1 && line[1].isDigit())
            numbers << line.left(31);
    EXPECT_EQ(numbers, (QStringList{" 1        300        100       ", " 3        310        100       "}));
}

TEST_F(ResultListWindow, CancelLeavesTheWindowOpen) {
    UseSeries({{300, 100}});
    Open("mnuCalc(2)");
    Click(Option(2));
    ClickButton(output, "cmdCalc_OK");
    EXPECT_EQ(dialogs.fileRequests.size(), 1U);
    EXPECT_EQ(Find<frmCalcOut>(), output);
    EXPECT_TRUE(Option(2)->isChecked());
    Click(Option(0));
    ClickButton(output, "cmdCalc_OK");
    EXPECT_EQ(Find<frmCalcOut>(), nullptr);
}

TEST_F(ResultListWindow, AFileThatCannotBeWrittenIsSaidAndTheWindowCloses) {
    UseSeries({{300, 100}});
    Open("mnuCalc(2)");
    Click(Option(2));
    dialogs.files.emplace_back((machine.WritableFolder() / "nirgends" / "a.LST").string());
    ClickButton(output, "cmdCalc_OK");
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_EQ(dialogs.shown[0].title, "Ausgabe-Fehler");
    EXPECT_FALSE(dialogs.shown[0].text.empty());
    EXPECT_TRUE(Option(0)->isChecked());
    EXPECT_EQ(Find<frmCalcOut>(), nullptr);
}

TEST_F(ResultListWindow, FunctionsFollowTheirBox) {
    UseSeries({{300, 100}, {310, 100}});
    Open("mnuCalc(2)");
    Click(In<QCheckBox>(output, "ResPlus(2)"));
    Click(Option(2));
    Click(In<QCheckBox>(output, "chkFuncPrint"));
    ClickButton(output, "cmdVor");
    dialogs.files.emplace_back(ListFile().string());
    ClickButton(output, "cmdCalc_OK");
    const QStringList lines = WrittenLines();
    EXPECT_TRUE(lines.contains("for data set 1"));
    const qsizetype second = lines.indexOf("for data set 2");
    ASSERT_GE(second, 0);
    EXPECT_TRUE(lines[second + 1].startsWith("T/K = 310         p/kPa = 100       v/m^3/kmol = "));
    EXPECT_TRUE(lines[second + 2].startsWith("      (dp/dV) bei T:  " + QString(26, ' ') + "-"))
        << FromQt(lines[second + 2]);
}

// The windows in the order in which they close.
struct Closings : QObject {
    QStringList names;

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Close)
            names << watched->objectName();
        return false;
    }
};

TEST_F(ResultListWindow, WindowsOfTheCalculationCloseBehindItInTheirOrder) {
    UseSeries({{300, 100}});
    Open("mnuCalc(2)");
    Closings closings;
    output->installEventFilter(&closings);
    for (const char* name :
         {"frmManuInput", "frmIsoCalc", "frmKessel", "frmReferenz", "frmParinput", "frmGraph"}) {
        auto* form = new QWidget(window.get(), Qt::Window); // only its name counts
        form->setObjectName(QLatin1String(name));
        form->installEventFilter(&closings);
        form->show();
    }
    ClickButton(output, "cmdCalc_OK");
    EXPECT_EQ(closings.names, (QStringList{"frmCalcOut", "frmParinput", "frmReferenz", "frmKessel",
                                           "frmIsoCalc", "frmManuInput"}));
}

TEST_F(ResultListWindow, TheListGoesToAPdfThroughThePrintDialog) {
    UseSeries({{300, 100}});
    Open("mnuCalc(2)");
    Click(Option(1));
    const QString pdf = ToQt((machine.WritableFolder() / "liste.pdf").string());
    QTimer::singleShot(0, qApp, [&pdf] {
        auto* dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        auto* name = dialog->findChild<QLineEdit*>("filename");
        ASSERT_NE(name, nullptr);
        name->setText(pdf);
        dialog->accept();
    });
    ClickButton(output, "cmdCalc_OK");
    EXPECT_TRUE(ReadFile(pdf.toStdString()).value_or("").starts_with("%PDF"));
    EXPECT_EQ(Find<frmCalcOut>(), nullptr);
}

TEST_F(ResultListWindow, CancelledPrintLeavesTheWindowOpen) {
    UseSeries({{300, 100}});
    Open("mnuCalc(2)");
    Click(Option(1));
    QTimer::singleShot(0, qApp, [] {
        auto* dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        dialog->reject();
    });
    ClickButton(output, "cmdCalc_OK");
    EXPECT_EQ(Find<frmCalcOut>(), output);
}

std::size_t PageCount(const std::string& pdf) {
    std::size_t count = 0;
    for (std::size_t at = 0; (at = pdf.find("/Type /Page\n", at)) != std::string::npos; ++at)
        ++count;
    return count;
}

TEST(ResultListOnPrinter, BreaksPagesWhereTheyEnd) {
    const TestMachine machine;
    const auto print = [&](int count) {
        const auto file = machine.WritableFolder() / "liste.pdf";
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setPageSize(QPageSize(QPageSize::A4));
        printer.setOutputFileName(ToQt(file.string()));
        ListPage page;
        for (int i = 0; i < count; ++i)
            page.TextLine(3, "Zeile");
        EXPECT_TRUE(DrawResultList(page.Lines(), printer));
        return PageCount(ReadFile(file).value_or(""));
    };
    EXPECT_EQ(print(20), 1U);
    const std::size_t pages = print(400);
    EXPECT_GE(pages, 4U); // 50 to 100 lines a page
    EXPECT_LE(pages, 8U);
}

TEST(ResultListOnPrinter, SaysWhenThePaperCannotBeReached) {
    const TestMachine machine;
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(ToQt((machine.WritableFolder() / "nirgends" / "liste.pdf").string()));
    EXPECT_FALSE(DrawResultList({}, printer));
}

} // namespace
} // namespace orva::test

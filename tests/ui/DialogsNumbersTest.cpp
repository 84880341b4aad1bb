#include <QLocale>
#include <QTest>
#include <limits>

#include "ui/dialogs/NumberText.h"
#include "ui/dialogs/RawText.h"

using namespace vorlan;

class DialogsNumbers : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void cleanup() { QLocale::setDefault(QLocale::c()); }

    void readsNumbersInCNotation() {
        const std::pair<const char*, double> numbers[] = {
            {"12.5", 12.5}, {"  -3 ", -3.0}, {"+.5", 0.5}, {"1e-7", 1e-7}, {"7.", 7.0}};
        for (const QLocale& locale : {QLocale::c(), QLocale(QLocale::German, QLocale::Germany)}) {
            QLocale::setDefault(locale);
            for (const auto& [text, value] : numbers) {
                QCOMPARE(parsedNumber(QLatin1String(text)), std::optional(value));
            }
            for (const char* text : {"", "1,5", "5 s", "+-5", "nan", "inf", "1e999"}) {
                QVERIFY2(!parsedNumber(QLatin1String(text)), text);
            }
        }
        QCOMPARE(parsedInteger(QStringLiteral(" +42 ")), std::optional(42));
        QCOMPARE(parsedInteger(QStringLiteral("-2147483648")), std::optional(std::numeric_limits<int>::min()));
        for (const char* text : {"", "10.0", "1e2", "0x10", "2147483648", "ten"}) {
            QVERIFY2(!parsedInteger(QLatin1String(text)), text);
        }
    }

    void writesNumbersTheSameInEveryLocale() {
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        QCOMPARE(numberText(0.1), QStringLiteral("0.1"));
        QCOMPARE(numberText(1234567.125), QStringLiteral("1234567.125"));
        QCOMPARE(numberText(1e-7), QStringLiteral("1e-07"));
        QCOMPARE(numberText(-1234567 * 0.001), QStringLiteral("-1234.567"));
        QCOMPARE(twoDecimals(0.004), QStringLiteral("0.00"));
    }

    void keepsBytesOfTextThatWasNotEdited() {
        const std::string windows = "v\xE9locit\xE9";
        const QString shown = displayText(windows);
        QCOMPARE(shown, QString::fromUtf8("v\xC3\xA9locit\xC3\xA9"));
        QCOMPARE(editedText(shown, windows), windows);
        QCOMPARE(editedText(shown + QLatin1Char('s'), windows), std::string("v\xC3\xA9locit\xC3\xA9s"));
    }
};

QTEST_APPLESS_MAIN(DialogsNumbers)
#include "DialogsNumbersTest.moc"

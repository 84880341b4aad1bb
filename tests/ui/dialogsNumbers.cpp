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

    void readsNumbersInCNotation_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("good");
        QTest::addColumn<double>("value");
        QTest::newRow("plain") << "12.5" << true << 12.5;
        QTest::newRow("blanks around") << "  -3 " << true << -3.0;
        QTest::newRow("plus sign") << "+.5" << true << 0.5;
        QTest::newRow("exponent") << "1e-7" << true << 1e-7;
        QTest::newRow("nothing after the point") << "7." << true << 7.0;
        QTest::newRow("empty") << "" << false << 0.0;
        QTest::newRow("comma") << "1,5" << false << 0.0;
        QTest::newRow("trailing text") << "5 s" << false << 0.0;
        QTest::newRow("two signs") << "+-5" << false << 0.0;
        QTest::newRow("not a number") << "nan" << false << 0.0;
        QTest::newRow("infinite") << "inf" << false << 0.0;
        QTest::newRow("too large") << "1e999" << false << 0.0;
    }
    void readsNumbersInCNotation() {
        QFETCH(QString, text);
        QFETCH(bool, good);
        QFETCH(double, value);
        for (const QLocale& locale : {QLocale::c(), QLocale(QLocale::German, QLocale::Germany)}) {
            QLocale::setDefault(locale);
            const std::optional<double> number = parsedNumber(text);
            QCOMPARE(number.has_value(), good);
            QCOMPARE(number.value_or(0.0), value);
        }
    }

    void readsIntegersOf32Bits() {
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
#include "dialogsNumbers.moc"

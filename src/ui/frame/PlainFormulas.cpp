#include "ui/frame/PlainFormulas.h"

#include <QHash>
#include <QRegularExpression>

namespace vorlan {

namespace {

const QHash<QString, QString>& signs() {
    static const QHash<QString, QString> all = {
        {QStringLiteral("Delta"), QStringLiteral("Δ")},
        {QStringLiteral("sigma"), QStringLiteral("σ")},
        {QStringLiteral("tau"), QStringLiteral("τ")},
        {QStringLiteral("varepsilon"), QStringLiteral("ε")},
        {QStringLiteral("epsilon"), QStringLiteral("ε")},
        {QStringLiteral("pi"), QStringLiteral("π")},
        {QStringLiteral("omega"), QStringLiteral("ω")},
        {QStringLiteral("varphi"), QStringLiteral("φ")},
        {QStringLiteral("phi"), QStringLiteral("φ")},
        {QStringLiteral("theta"), QStringLiteral("θ")},
        {QStringLiteral("eta"), QStringLiteral("η")},
        {QStringLiteral("nu"), QStringLiteral("ν")},
        {QStringLiteral("sum"), QStringLiteral("Σ")},
        {QStringLiteral("int"), QStringLiteral("∫")},
        {QStringLiteral("cdot"), QStringLiteral("·")},
        {QStringLiteral("times"), QStringLiteral("×")},
        {QStringLiteral("le"), QStringLiteral("≤")},
        {QStringLiteral("ge"), QStringLiteral("≥")},
        {QStringLiteral("ne"), QStringLiteral("≠")},
        {QStringLiteral("approx"), QStringLiteral("≈")},
        {QStringLiteral("pm"), QStringLiteral("±")},
        {QStringLiteral("ldots"), QStringLiteral("…")},
        {QStringLiteral("leftarrow"), QStringLiteral("←")},
        {QStringLiteral("Rightarrow"), QStringLiteral("⇒")},
        {QStringLiteral("circ"), QStringLiteral("°")},
        {QStringLiteral("infty"), QStringLiteral("∞")},
        {QStringLiteral("lvert"), QStringLiteral("|")},
        {QStringLiteral("rvert"), QStringLiteral("|")},
        {QStringLiteral("quad"), QStringLiteral("   ")},
        {QStringLiteral("qquad"), QStringLiteral("      ")},
        {QStringLiteral("left"), QString()},
        {QStringLiteral("right"), QString()},
    };
    return all;
}

constexpr QStringView kRaised = u"0⁰1¹2²3³4⁴5⁵6⁶7⁷8⁸9⁹+⁺-⁻(⁽)⁾nⁿiⁱ";
constexpr QStringView kLowered = u"0₀1₁2₂3₃4₄5₅6₆7₇8₈9₉+₊-₋(₍)₎iᵢjⱼkₖmₘnₙpₚrᵣsₛtₜuᵤvᵥxₓ";

/// The text in small letters, or behind a mark where there are none.
QString placed(const QString& text, QStringView letters, QChar mark) {
    QString small;
    for (const QChar c : text) {
        qsizetype at = -1;
        for (qsizetype i = 0; i + 1 < letters.size(); i += 2) {
            at = letters[i] == c ? i : at;
        }
        if (at < 0) {
            return text == QStringLiteral("°") ? text
                   : text.size() == 1          ? mark + text
                                               : mark + QLatin1Char('(') + text + QLatin1Char(')');
        }
        small += letters[at + 1];
    }
    return small;
}

/// Several terms in brackets.
QString asOne(const QString& text) {
    static const QRegularExpression kTerms(QStringLiteral("[-+/ ·Σ]"));
    return text.size() > 1 && text.contains(kTerms) ? QLatin1Char('(') + text.trimmed() + QLatin1Char(')') : text;
}

class Formula {
  public:
    explicit Formula(const QString& text) : text_(text) {}

    /// Up to the end of the group, or of the text.
    QString read() {
        QString plain;
        while (at_ < text_.size() && text_[at_] != QLatin1Char('}')) {
            plain += next();
        }
        ++at_;
        return plain;
    }

  private:
    /// A sign, a command with what belongs to it, or a group.
    QString next() {
        const QChar c = text_[at_++];
        if (c == QLatin1Char('{')) {
            return read();
        }
        if (c == QLatin1Char('_') || c == QLatin1Char('^')) {
            return placed(argument(), c == QLatin1Char('_') ? kLowered : kRaised, c);
        }
        return c == QLatin1Char('\\') ? command() : c == QLatin1Char('&') ? QStringLiteral(" ") : QString(c);
    }

    QString argument() {
        while (at_ < text_.size() && text_[at_] == QLatin1Char(' ')) {
            ++at_;
        }
        return at_ < text_.size() && text_[at_] != QLatin1Char('}') ? next() : QString();
    }

    QString command() {
        QString name;
        while (at_ < text_.size() && text_[at_].isLetter()) {
            name += text_[at_++];
        }
        if (name.isEmpty()) {
            const QChar c = at_ < text_.size() ? text_[at_++] : QLatin1Char(' ');
            return c == QLatin1Char('\\')                ? QStringLiteral("\n")
                   : QStringLiteral(",;:! ").contains(c) ? QStringLiteral(" ")
                                                         : QString(c);
        }
        if (name.endsWith(QLatin1String("frac"))) {
            const QString above = asOne(argument());
            return above + QLatin1Char('/') + asOne(argument());
        }
        if (name == QLatin1String("sqrt")) {
            return QStringLiteral("√") + asOne(argument());
        }
        if (name == QLatin1String("bar") || name == QLatin1String("overline")) {
            return argument() + QChar(0x0304);
        }
        if (name == QLatin1String("text") || name == QLatin1String("mathrm")) {
            return argument();
        }
        return signs().value(name, name);
    }

    const QString& text_;
    qsizetype at_ = 0;
};

}  // namespace

QString plainFormula(const QString& formula) {
    return Formula(formula).read();
}

QString withPlainFormulas(const QString& markdown) {
    // Blocks of code and spans of code first: they are passed over.
    static const QRegularExpression kPart(QStringLiteral("```math\\n(.*?)\\n```|```.*?```|`[^`\\n]+`|\\$([^$\\n]+)\\$"),
                                          QRegularExpression::DotMatchesEverythingOption);
    QString plain;
    qsizetype done = 0;
    for (auto parts = kPart.globalMatch(markdown); parts.hasNext();) {
        const QRegularExpressionMatch part = parts.next();
        plain += QStringView(markdown).mid(done, part.capturedStart() - done);
        done = part.capturedEnd();
        if (part.capturedLength(1) > 0) {
            plain += QStringLiteral("```\n") + plainFormula(part.captured(1)) + QStringLiteral("\n```");
        } else {
            plain += part.capturedLength(2) > 0
                         ? plainFormula(part.captured(2)).replace(QLatin1Char('*'), QLatin1String("\\*"))
                         : part.captured();
        }
    }
    return plain + markdown.mid(done);
}

}  // namespace vorlan

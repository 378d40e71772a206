#include "platform/window/Application.h"
#include "platform/window/Form.h"
#include "platform/window/Look.h"
#include "tests/support/Scenes.h"

#include <QAbstractButton>
#include <QLabel>
#include <QPalette>

#include <cmath>

namespace {
/// Luminance as the accessibility guidelines define it, with the 0.05 that a contrast adds to both sides.
double light(const QColor &colour)
{
    const auto linear = [](double part) { return std::pow((part + 0.055) / 1.055, 2.4); };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF()) + 0.05;
}

bool isCut(const QWidget &widget)
{
    const auto *label = qobject_cast<const QLabel *>(&widget);
    if (!widget.isVisible() || (!label && !qobject_cast<const QAbstractButton *>(&widget)))
        return false;
    const bool wraps = label && label->wordWrap();
    const QSize wanted = wraps ? QSize(0, label->heightForWidth(label->width())) : widget.minimumSizeHint();
    return wanted.width() > widget.width() || wanted.height() > widget.height();
}

QHash<QString, QRect> places(const Form &window)
{
    QHash<QString, QRect> found;
    for (const QWidget *widget : window.findChildren<QWidget *>())
        if (!widget->objectName().isEmpty() && !widget->objectName().startsWith("qt_"))
            found[widget->objectName()] = widget->geometry();
    return found;
}
} // namespace

class TestLooks : public QObject
{
    Q_OBJECT

private slots:
    void textsHaveRoom()
    {
        for (const QString &language : Scenes::languages()) {
            Scenes scenes(language);
            const bool first = language == Scenes::languages().first();
            for (const QString &scene : Scenes::windows() + (first ? Scenes::states() : QStringList()))
                scenes.play(scene, [&](const Form &window) {
                    for (const QLabel *label : window.findChildren<QLabel *>())
                        QVERIFY2(label->textFormat() == Qt::PlainText, qPrintable(label->objectName()));
                    for (const QWidget *widget : window.findChildren<QWidget *>())
                        QVERIFY2(!isCut(*widget), qPrintable(language + ", " + scene + ": " + widget->objectName()));
                });
        }
    }

    void bigNumbersMoveNothing()
    {
        Scenes scenes("Portugues");
        QHash<QString, QRect> small;
        scenes.play("frmvenda-small", [&](const Form &window) { small = places(window); });
        scenes.play("frmvenda", [&](const Form &window) {
            const QHash<QString, QRect> big = places(window);
            for (auto each = big.begin(); each != big.end(); ++each)
                QVERIFY2(each.value() == small[each.key()], qPrintable(each.key()));
        });
    }

    void coloursContrast()
    {
        using Role = QPalette;
        for (const QPalette &palette : {lookPalette(false), lookPalette(true)})
            for (const auto group : {QPalette::Active, QPalette::Disabled}) {
                const auto check = [&](QPalette::ColorRole role, const QColor &ground) {
                    const auto [least, most] = std::minmax({light(palette.color(group, role)), light(ground)});
                    QVERIFY2(most >= 4.5 * least,
                             qPrintable(palette.color(group, role).name() + " on " + ground.name()));
                };
                check(Role::HighlightedText, palette.color(group, Role::Highlight));
                check(Role::ButtonText, palette.color(group, Role::Button));
                for (const auto role : {Role::Text, Role::PlaceholderText, Role::BrightText})
                    for (const auto ground : {Role::Base, Role::AlternateBase})
                        check(role, palette.color(group, ground));
                for (const auto role : {Role::WindowText, Role::PlaceholderText, Role::Link, Role::BrightText})
                    for (int state = 0; state <= static_cast<int>(CardState::Locked); ++state)
                        check(role, cardColours(static_cast<CardState>(state), palette).fill);
            }
    }
};

int main(int argc, char **argv)
{
    const Application application(argc, argv);
    TestLooks test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_looks.moc"

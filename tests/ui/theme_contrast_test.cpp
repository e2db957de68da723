// Every window opened under a light and under a dark desktop palette: each text it shows must
// stand out from what is drawn behind it by the WCAG contrast ratio 4.5:1, whichever colours the
// game fixes and whichever it leaves to the theme.
#include "core/contrast.h"
#include "tests/support/window_harness.h"
#include "ui/colours.h"
#include "ui/confirm_window.h"
#include "ui/dictionary_editor_window.h"
#include "ui/end_of_match_window.h"
#include "ui/information_window.h"
#include "ui/readable_colours.h"
#include "ui/records_window.h"
#include "ui/review_window.h"
#include "ui/vocabulary_editor_window.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QStyleFactory>
#include <QTextEdit>

using namespace griglione;
using namespace griglione::testing;

namespace {

// Adwaita's dark variant, as the GTK theme hands it to Qt.
QPalette darkPalette() {
    const QColor window(53, 53, 53), text(238, 238, 236), base(45, 45, 45);
    QPalette p(text, window, window.lighter(), window.darker(), window, text, Qt::white, base,
               window);
    p.setColor(QPalette::Highlight, QColor(21, 83, 158));
    p.setColor(QPalette::HighlightedText, Qt::white);
    return p;
}

QColor behind(const QWidget* w) {
    while (!w->isWindow() && !w->autoFillBackground())
        w = w->parentWidget();
    return w->palette().color(w->backgroundRole());
}

// "Form2/Label5 'STATISTICHE' 1.80:1" for each text below the level.
QStringList unreadable(QWidget* window) {
    QStringList found;
    const auto check = [&](const QWidget* w, const QString& text, const QColor& fg,
                           const QColor& bg) {
        const double ratio =
            contrastRatio({fg.red(), fg.green(), fg.blue()}, {bg.red(), bg.green(), bg.blue()});
        if (!text.trimmed().isEmpty() && ratio < kReadableContrast)
            found << QStringLiteral("%1/%2 '%3' %4:1")
                         .arg(window->objectName(), w->objectName(), text)
                         .arg(ratio, 0, 'f', 2);
    };
    for (QWidget* w : window->findChildren<QWidget*>()) {
        // The hint of an empty field, as drawn: half transparent in many themes, and read
        // before the field is enabled.
        if (auto* edit = qobject_cast<QLineEdit*>(w);
            edit && edit->isVisibleTo(window) && edit->text().isEmpty()) {
            const auto group = edit->isEnabled() ? QPalette::Active : QPalette::Disabled;
            const QColor ground = edit->palette().color(group, QPalette::Base);
            const QColor hint = edit->palette().color(group, QPalette::PlaceholderText);
            const double a = hint.alphaF();
            check(w, edit->placeholderText(),
                  QColor::fromRgbF(hint.redF() * a + ground.redF() * (1 - a),
                                   hint.greenF() * a + ground.greenF() * (1 - a),
                                   hint.blueF() * a + ground.blueF() * (1 - a)),
                  ground);
        }
        // Text of a control that cannot be used needs no contrast (WCAG's own exception).
        if (!w->isVisibleTo(window) || !w->isEnabled()) continue;
        const QPalette& p = w->palette();
        const QColor face = p.color(QPalette::Button), faceText = p.color(QPalette::ButtonText);
        if (auto* label = qobject_cast<QLabel*>(w))
            check(w, label->text(), p.color(label->foregroundRole()), behind(w));
        else if (auto* radio = qobject_cast<QRadioButton*>(w))
            check(w, radio->text(), p.color(QPalette::WindowText), behind(w));
        else if (auto* button = qobject_cast<QAbstractButton*>(w))
            check(w, button->text(), faceText, face);
        else if (auto* combo = qobject_cast<QComboBox*>(w))
            check(w, combo->currentText(), faceText, face);
        else if (qobject_cast<QLineEdit*>(w) || qobject_cast<QTextEdit*>(w))
            check(w, w->property(qobject_cast<QLineEdit*>(w) ? "text" : "plainText").toString(),
                  p.color(QPalette::Text), p.color(QPalette::Base));
        else if (auto* list = qobject_cast<QListWidget*>(w))
            for (int i = 0; i < list->count(); ++i) {
                const bool chosen = list->item(i)->isSelected();
                check(w, list->item(i)->text(),
                      p.color(chosen ? QPalette::HighlightedText : QPalette::Text),
                      p.color(chosen ? QPalette::Highlight : QPalette::Base));
            }
    }
    return found;
}

} // namespace

class ThemeContrastTest : public QObject {
    Q_OBJECT
private slots:
    void everyTextIsReadable_data() {
        QTest::addColumn<bool>("dark");
        QTest::newRow("light") << false;
        QTest::newRow("dark") << true;
        QTest::newRow("dark, dim hints") << true;
    }
    void everyTextIsReadable() {
        QFETCH(bool, dark);
        // As the desktop's theme hands the running program its palette (Fusion's selection is
        // white on a middle blue).
        ReadableColours colours;
        QPalette theme = dark ? darkPalette() : QStyleFactory::create("Fusion")->standardPalette();
        // A theme whose hints all but vanish into the fields' ground.
        if (QString(QTest::currentDataTag()).contains("dim"))
            theme.setColor(QPalette::PlaceholderText, QColor(60, 60, 60, 160));
        QApplication::setPalette(theme);
        QStringList found;
        GameHarness game;
        game.start();
        game.setBoard("ERACASAMAREPANE");
        QWidget* parent = game.window.get();
        game.window->state().paroleGiocatore = {"era", "ape"}; // one chosen, one not
        game.window->state().paroleCPU = {"casa", "mare"};
        for (Aspect aspect : {Aspect::PlayerWords, Aspect::CpuWords})
            game.window->changed(aspect);
        found << unreadable(parent);

        EndOfMatchWindow end(
            *game.timer("Timer1"), *game.timer("Timer2"), game.sounds, game.window->messages(),
            [] {}, parent);
        whenShown("Form2", [&](QWidget* w) { found << unreadable(w), w->hide(); });
        end.showResult("BRIVO", 540, 180, {true, false, false, false});

        ReviewWindow review(parent);
        review.load(game.window->state(), game.folder.path());
        review.show();
        found << unreadable(&review);

        auto* records = new RecordsWindow([](const QString&, const QString&) {}, [] {}, parent);
        records->fill({{"Nome        Punti", "ANNA           2000"}, "ANNA", 1, true});
        found << unreadable(records);
        records->discard();

        InformationWindow info(
            QPixmap(), game.window->messages(), [] {}, [] {}, parent);
        MessageWindow message({"BENE!", "Complimenti!", "ERA: 180 punti"}, parent);
        ConfirmWindow confirm("tavolo", "Italiano", "Regole", parent);
        found << unreadable(&info) << unreadable(&message) << unreadable(&confirm);

        EditorHarness editor;
        DictionaryEditorWindow dictionary(editor.context(WordLists{{{"ERA"}, {"CASA"}}}), parent);
        QSignalSpy loaded(&dictionary, &DictionaryEditorWindow::loaded);
        dictionary.show();
        QVERIFY(loaded.wait());
        editor.answers = {true};
        child<QComboBox>(&dictionary, "Combo1_0")->setCurrentIndex(0);
        QTest::mouseClick(child<QPushButton>(&dictionary, "Command5"), Qt::LeftButton);
        found << unreadable(&dictionary);
        VocabularyEditorWindow vocabulary(editor.context(WordLists{{{}, {"CASA"}}}), parent);
        found << unreadable(&vocabulary);
        QVERIFY2(found.isEmpty(), qPrintable(found.join('\n')));
    }

    // A dark theme chosen while the game runs: the program's dark blue on the theme's ground is
    // worked out again for the new ground.
    void fixedTextColoursFollowAThemeChange() {
        ReadableColours colours;
        QApplication::setPalette(QStyleFactory::create("Fusion")->standardPalette());
        QWidget window;
        auto* label = new QLabel("STATISTICHE", &window);
        setTextColour(label, kBlue);
        window.show();
        QApplication::setPalette(darkPalette());
        QTRY_COMPARE(window.palette().color(QPalette::Window),
                     darkPalette().color(QPalette::Window));
        QTRY_VERIFY2(unreadable(&window).isEmpty(), qPrintable(unreadable(&window).join('\n')));
    }
};

QTEST_MAIN(ThemeContrastTest)
#include "theme_contrast_test.moc"

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
#include "ui/records_window.h"
#include "ui/review_window.h"
#include "ui/vocabulary_editor_window.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QStyleFactory>
#include <QTextEdit>
#include <QToolButton>

using namespace griglione;
using namespace griglione::testing;

namespace {

// Adwaita's dark variant, as the GTK theme hands it to Qt.
QPalette darkPalette() {
    QPalette p;
    const QColor window(53, 53, 53), text(238, 238, 236), base(45, 45, 45);
    for (auto [role, colour] : {std::pair{QPalette::Window, window},
                                {QPalette::WindowText, text},
                                {QPalette::Base, base},
                                {QPalette::AlternateBase, window},
                                {QPalette::Text, text},
                                {QPalette::Button, window},
                                {QPalette::ButtonText, text},
                                {QPalette::Highlight, QColor(21, 83, 158)},
                                {QPalette::HighlightedText, QColor(255, 255, 255)},
                                {QPalette::ToolTipBase, base},
                                {QPalette::ToolTipText, text}})
        p.setColor(role, colour);
    return p;
}

QColor behind(const QWidget* w) {
    while (!w->isWindow() && !w->autoFillBackground())
        w = w->parentWidget();
    return w->palette().color(w->backgroundRole());
}

double ratio(const QColor& a, const QColor& b) {
    return contrastRatio({a.red(), a.green(), a.blue()}, {b.red(), b.green(), b.blue()});
}

// "Form2/Label5 'STATISTICHE' 1.8:1" for each text below the level.
QStringList unreadable(QWidget* window) {
    QStringList found;
    const auto check = [&](const QWidget* w, const QString& text, const QColor& fg,
                           const QColor& bg) {
        if (text.trimmed().isEmpty() || ratio(fg, bg) >= kReadableContrast) return;
        found << QStringLiteral("%1/%2 '%3' %4:1")
                     .arg(window->objectName(), w->objectName(), text)
                     .arg(ratio(fg, bg), 0, 'f', 2);
    };
    for (QWidget* w : window->findChildren<QWidget*>()) {
        // Text of a control that cannot be used needs no contrast (WCAG's own exception).
        if (!w->isVisibleTo(window) || !w->isEnabled()) continue;
        const QPalette& p = w->palette();
        if (auto* label = qobject_cast<QLabel*>(w))
            check(w, label->text(), p.color(label->foregroundRole()), behind(w));
        else if (qobject_cast<QPushButton*>(w) || qobject_cast<QToolButton*>(w))
            check(w, static_cast<QAbstractButton*>(w)->text(), p.color(QPalette::ButtonText),
                  p.color(QPalette::Button));
        else if (auto* radio = qobject_cast<QRadioButton*>(w))
            check(w, radio->text(), p.color(QPalette::WindowText), behind(w));
        else if (auto* line = qobject_cast<QLineEdit*>(w))
            check(w, line->text(), p.color(QPalette::Text), p.color(QPalette::Base));
        else if (auto* edit = qobject_cast<QTextEdit*>(w))
            check(w, edit->toPlainText(), p.color(QPalette::Text), p.color(QPalette::Base));
        else if (auto* combo = qobject_cast<QComboBox*>(w))
            check(w, combo->currentText(), p.color(QPalette::ButtonText),
                  p.color(QPalette::Button));
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

    void themed(bool dark) {
        // As the program takes the desktop's palette at start-up.
        QApplication::setPalette(withReadableSelection(
            dark ? darkPalette() : QStyleFactory::create("Fusion")->standardPalette()));
    }

private slots:
    void everyTextIsReadable_data() {
        QTest::addColumn<bool>("dark");
        QTest::newRow("light") << false;
        QTest::newRow("dark") << true;
    }
    void everyTextIsReadable() {
        QFETCH(bool, dark);
        themed(dark);
        QStringList found;
        GameHarness game;
        game.start();
        game.setBoard("ERACASAMAREPANE");
        game.window->state().paroleGiocatore = {"era"};
        game.window->state().paroleCPU = {"casa"};
        game.window->changed(Aspect::PlayerWords);
        game.window->changed(Aspect::CpuWords);
        found << unreadable(game.window.get());

        QWidget* parent = game.window.get();
        EndOfMatchWindow end(
            *game.timer("Timer1"), *game.timer("Timer2"), game.sounds, game.window->messages(),
            [] {}, parent);
        whenShown("Form2", [&](QWidget* w) {
            found << unreadable(w);
            w->hide();
        });
        end.showResult("BRIVO", 540, 180, {true, false, false, false});

        ReviewWindow review(parent);
        game.window->state().numDizionario = 1;
        review.load(game.window->state(), game.folder.path());
        review.show();
        found << unreadable(&review);

        auto* records = new RecordsWindow([](const QString&, const QString&) {}, [] {}, parent);
        records->fill({{"Nome        Punti", "ANNA           2000"}, "ANNA", 1, true});
        found << unreadable(records);
        records->discard();

        InformationWindow info(
            QPixmap(), game.window->messages(), [] {}, [] {}, parent);
        found << unreadable(&info);
        MessageWindow message({"BENE!", "Complimenti, parola accettata!", "ERA: 180 punti"},
                              parent);
        found << unreadable(&message);
        ConfirmWindow confirm("tavolo", "Italiano", "Regole", parent);
        found << unreadable(&confirm);

        EditorHarness editor;
        editor.state.nomeDizionario = "Italiano";
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
};

QTEST_MAIN(ThemeContrastTest)
#include "theme_contrast_test.moc"

// Times the main dictionary editor with the shipped Italian and Latin dictionaries: the whole
// load (window shown, every list filled, progress drawn) and a rebuild of the file, each on a
// copy of the dictionary in a folder of its own.
#include "bench/bench_support.h"
#include "ui/dictionary_editor_window.h"

#include <QApplication>
#include <QEventLoop>
#include <QLabel>

#include <cstdio>
#include <exception>
#include <filesystem>

using namespace griglione;

namespace {

struct Timings {
    std::vector<double> load;
    std::vector<double> rebuild;
};

void timeLanguage(int numDizionario, const char* nome, const std::filesystem::path& data,
                  Timings& timings) {
    const auto folder = std::filesystem::temp_directory_path() /
                        ("griglione-editor-bench-" + std::to_string(numDizionario));
    std::filesystem::create_directories(folder);
    std::filesystem::copy_file(data / dictionaryFileName(numDizionario),
                               folder / dictionaryFileName(numDizionario),
                               std::filesystem::copy_options::overwrite_existing);
    GameState state;
    state.numDizionario = static_cast<std::int16_t>(numDizionario);
    state.nomeDizionario = nome;
    OpenFileTable files;
    bench::BenchAlerts alerts;
    Dictionary dictionary(
        state, files, alerts, [] {}, folder);
    dictionary.prendidiz();
    const EditorContext context{state,
                                dictionary,
                                files,
                                alerts,
                                [](const std::string&) { return true; },
                                [] { QCoreApplication::processEvents(); },
                                [] {},
                                [] {},
                                folder};
    for (int run = 0; run < 5; ++run) {
        const auto start = std::chrono::steady_clock::now();
        DictionaryEditorWindow window(context, nullptr);
        QEventLoop loop;
        QObject::connect(&window, &DictionaryEditorWindow::loaded, &loop, &QEventLoop::quit);
        window.show();
        loop.exec();
        window.repaint(); // the last length's progress and counts on the screen
        timings.load.push_back(bench::milliseconds(std::chrono::steady_clock::now() - start));

        const auto rebuildStart = std::chrono::steady_clock::now();
        window.ricreaDizionario();
        timings.rebuild.push_back(
            bench::milliseconds(std::chrono::steady_clock::now() - rebuildStart));
        if (run == 0)
            std::printf("%s: %s words loaded, %s\n", nome,
                        qPrintable(window.findChild<QLabel*>("Label4")->text()),
                        qPrintable(window.findChild<QLabel*>("Label3")->text()));
    }
    std::filesystem::remove_all(folder);
}

} // namespace

int main(int argc, char** argv) try {
    QApplication application(argc, argv);
    const std::filesystem::path data = argc > 1 ? argv[1] : "data";
    int failed = 0;
    for (const auto& [number, nome] : {std::pair{1, "Italiano"}, std::pair{3, "Latino"}}) {
        Timings timings;
        timeLanguage(number, nome, data, timings);
        std::printf("%s load: ", nome);
        failed |= bench::report(timings.load, 1500.0);
        std::printf("%s rebuild: ", nome);
        failed |= bench::report(timings.rebuild, 500.0);
    }
    return failed;
} catch (const std::exception& error) {
    std::printf("FAILED: %s\n", error.what());
    return 1;
}

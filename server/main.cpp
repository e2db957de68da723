// griglione-records: the world-records service. Reads its settings, opens the database and serves
// until SIGINT or SIGTERM, finishing the requests under way.
#include "server/challenge_service.h"
#include "server/http_front.h"
#include "server/records_service.h"
#include "server/service_config.h"
#include "server/sqlite_challenge_store.h"
#include "server/sqlite_store.h"
#include "server/static_files.h"

#include <csignal>
#include <iostream>
#include <pthread.h>
#include <thread>

int main(int argc, char** argv) {
    using namespace griglione;
    ServiceConfig config;
    if (const std::string error = readArguments(argc, argv, config); !error.empty()) {
        std::cerr << "griglione-records: " << error << "\n"
                  << "griglione-records --help mostra le impostazioni.\n";
        return 2;
    }
    if (config.help) {
        std::cout << usage();
        return 0;
    }
    // The signals are taken by one thread of our own, which can stop the server safely.
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGINT);
    sigaddset(&signals, SIGTERM);
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    std::signal(SIGPIPE, SIG_IGN);

    try {
        SqliteStore store(config.database);
        RecordsService service(store, config.submissionsPerMinute, config.refusalsPerMinute);
        SqliteChallengeStore challengeStore(challengeDatabase(config.database));
        const ChallengeDictionaries dictionaries(config.dictionaries);
        for (int language = 1; language <= 3; ++language)
            if (!dictionaries.has(language))
                std::cerr << "griglione-records: manca il dizionario " << language << " in "
                          << config.dictionaries.string() << ": le sfide in quella lingua sono "
                          << "rifiutate\n";
        const DayBoards days;
        ChallengeService challenges(challengeStore, dictionaries, days);
        service.offerChallenges(challenges);
        const StaticFiles files(config.pages);
        FrontOptions options;
        options.workers = config.threads;
        options.connections = config.connections;
        options.connectionsPerAddress = config.connectionsPerAddress;
        options.trustedProxy = config.trustedProxy;
        HttpFront front(service, files, options);
        const int port = front.bind(config.address, config.port);
        if (port < 0) {
            std::cerr << "griglione-records: " << front.error() << "\n";
            return 1;
        }
        std::cout << "griglione-records in ascolto su http://" << config.address << ":" << port
                  << "/ (database " << config.database.string() << ")" << std::endl;
        std::thread stopper([&] {
            int signal = 0;
            sigwait(&signals, &signal);
            front.stop();
        });
        const bool ok = front.run();
        if (!ok) {
            std::cerr << "griglione-records: " << front.error() << "\n";
            pthread_kill(stopper.native_handle(), SIGTERM);
        }
        stopper.join();
        std::cout << "griglione-records fermato." << std::endl;
        return ok ? 0 : 1;
    } catch (const std::exception& error) {
        std::cerr << "griglione-records: " << error.what() << "\n";
        return 1;
    }
}

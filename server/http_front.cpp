// Routes and limits of the records service on libmicrohttpd; every answer is a page or JSON.
#include "server/http_front.h"

#include "server/bounded_pool.h"
#include "server/challenge_service.h"
#include "server/connection_guard.h"
#include "server/records_service.h"
#include "server/service_log.h"
#include "server/static_files.h"

#include <arpa/inet.h>
#include <microhttpd.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <condition_variable>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <mutex>
#include <optional>
#include <thread>

namespace griglione {
namespace {

using Clock = std::chrono::steady_clock;

constexpr const char* kPagePolicy = "default-src 'none'; style-src 'self' 'unsafe-inline'; "
                                    "img-src 'self'; base-uri 'none'; form-action 'none'; "
                                    "frame-ancestors 'none'";
constexpr std::string_view kSubmission = "/records/griglione.asp";
// A challenge's result is stored like a record: only by the player's own GET, on a worker.
constexpr std::string_view kChallengeSubmission = "/sfide/invia";

// One request, from its request line to the end of its answer.
struct Exchange {
    std::string target; // as sent, still percent-encoded
    Clock::time_point start = Clock::now();
    std::string client;
    std::string method;
    bool started = false; // its headers are in
    bool routed = false;
    std::optional<Reply> reply; // filled by a worker while the connection is suspended
    int status = 0;
    std::size_t bytes = 0;
};

std::string addressText(const sockaddr* address) {
    char text[INET6_ADDRSTRLEN] = "?";
    if (!address) return text;
    if (address->sa_family == AF_INET)
        inet_ntop(AF_INET, &reinterpret_cast<const sockaddr_in*>(address)->sin_addr, text,
                  sizeof text);
    else if (address->sa_family == AF_INET6)
        inet_ntop(AF_INET6, &reinterpret_cast<const sockaddr_in6*>(address)->sin6_addr, text,
                  sizeof text);
    return text;
}

std::string peerOf(MHD_Connection* connection) {
    const MHD_ConnectionInfo* info =
        MHD_get_connection_info(connection, MHD_CONNECTION_INFO_CLIENT_ADDRESS);
    return addressText(info ? info->client_addr : nullptr);
}

// The address the proxy saw: the last of X-Forwarded-For, when it is an address at all.
std::optional<std::string> forwardedClient(std::string_view header) {
    const std::size_t comma = header.rfind(',');
    std::string last(header.substr(comma == std::string_view::npos ? 0 : comma + 1));
    const std::size_t first = last.find_first_not_of(" \t");
    if (first == std::string::npos) return std::nullopt;
    last = last.substr(first, last.find_last_not_of(" \t") - first + 1);
    in6_addr probe{};
    if (inet_pton(AF_INET, last.c_str(), &probe) != 1 &&
        inet_pton(AF_INET6, last.c_str(), &probe) != 1)
        return std::nullopt;
    return last;
}

std::string_view queryOf(std::string_view target) {
    const std::size_t mark = target.find('?');
    return mark == std::string_view::npos ? std::string_view() : target.substr(mark + 1);
}

MHD_Result headerSize(void* total, MHD_ValueKind, const char* key, const char* value) {
    auto& sum = *static_cast<std::pair<std::size_t, std::size_t>*>(total);
    sum.first += std::strlen(key) + std::strlen(value) + 4; // ": " and CR LF
    ++sum.second;
    return MHD_YES;
}

} // namespace

struct HttpFront::State {
    RecordsService& service;
    const StaticFiles& files;
    FrontOptions options;
    ConnectionGuard guard;
    BoundedPool workers;
    MHD_Daemon* daemon = nullptr;
    std::mutex mutex;
    std::condition_variable stopped;
    bool stopping = false;
    std::atomic<bool> accepting{true}; // false once the workers are ending

    State(RecordsService& s, const StaticFiles& f, FrontOptions o)
        : service(s), files(f), options(std::move(o)),
          guard(options.connectionsPerAddress, options.trustedProxy, kWaitLimit),
          workers(options.workers, 1024) {}

    MHD_Result answer(MHD_Connection* connection, Exchange& exchange, const Reply& reply,
                      const char* cache, const char* allow = nullptr) {
        auto* body = new std::string(reply.body);
        MHD_Response* response = MHD_create_response_from_buffer_with_free_callback_cls(
            body->size(), body->data(), [](void* text) { delete static_cast<std::string*>(text); },
            body);
        MHD_add_response_header(response, "Content-Type", reply.contentType.c_str());
        MHD_add_response_header(response, "Content-Security-Policy", kPagePolicy);
        MHD_add_response_header(response, "X-Content-Type-Options", "nosniff");
        MHD_add_response_header(response, "Referrer-Policy", "no-referrer");
        MHD_add_response_header(response, "Cache-Control", cache);
        if (allow) MHD_add_response_header(response, "Allow", allow);
        exchange.status = reply.status;
        exchange.bytes = body->size();
        const MHD_Result queued =
            MHD_queue_response(connection, static_cast<unsigned>(reply.status), response);
        MHD_destroy_response(response);
        if (reply.status >= 400)
            serviceLog().failure(std::to_string(reply.status) + " " + exchange.client,
                                 exchange.method + " " + loggedTarget(exchange.target) + ": " +
                                     reason(reply));
        return queued;
    }

    // The first words of the page's message, for the log.
    static std::string reason(const Reply& reply) {
        const std::size_t start = reply.body.find("<p>", reply.body.find("role=\"alert\""));
        if (start == std::string::npos) return {};
        const std::size_t end = reply.body.find("</p>", start);
        return reply.body.substr(start + 3, std::min<std::size_t>(end - start - 3, 160));
    }

    MHD_Result file(MHD_Connection* connection, Exchange& exchange, const StaticFile& file) {
        MHD_Response* response = MHD_create_response_from_buffer(
            file.bytes.size(), const_cast<char*>(file.bytes.data()), MHD_RESPMEM_PERSISTENT);
        MHD_add_response_header(response, "Content-Type", file.contentType.c_str());
        MHD_add_response_header(response, "X-Content-Type-Options", "nosniff");
        MHD_add_response_header(response, "Cache-Control", "max-age=3600");
        exchange.status = 200;
        exchange.bytes = file.bytes.size();
        const MHD_Result queued = MHD_queue_response(connection, MHD_HTTP_OK, response);
        MHD_destroy_response(response);
        return queued;
    }

    std::string clientOf(MHD_Connection* connection) {
        std::string peer = peerOf(connection);
        if (!options.trustedProxy.empty() && peer == options.trustedProxy)
            if (const char* forwarded =
                    MHD_lookup_connection_value(connection, MHD_HEADER_KIND, "X-Forwarded-For"))
                if (auto client = forwardedClient(forwarded)) return *client;
        return peer;
    }

    MHD_Result route(MHD_Connection* connection, Exchange& exchange) {
        std::pair<std::size_t, std::size_t> head{
            exchange.method.size() + exchange.target.size() + 12, 0};
        MHD_get_connection_values(connection, MHD_HEADER_KIND, headerSize, &head);
        if (exchange.target.size() > kMaxTargetBytes)
            return answer(connection, exchange,
                          RecordsService::error(414, "Indirizzo troppo lungo",
                                                "L'indirizzo supera i 2048 caratteri. Il record "
                                                "non è stato registrato."),
                          "no-cache");
        if (head.first > kMaxHeaderBytes || head.second > kMaxHeaders)
            return answer(connection, exchange,
                          RecordsService::error(431, "Richiesta non valida",
                                                "Intestazioni troppo lunghe o troppe."),
                          "no-cache");
        const bool get = exchange.method == "GET", head_ = exchange.method == "HEAD";
        // The service only reads: anything else is refused as such, not as a missing page.
        if (!get && !head_)
            return answer(connection, exchange,
                          RecordsService::error(405, "Richiesta non valida",
                                                "Il servizio risponde solo alla lettura delle "
                                                "pagine."),
                          "no-cache", "GET, HEAD");
        const std::string_view target = exchange.target;
        const std::string_view path = target.substr(0, target.find('?'));
        if (path == kSubmission || path == kChallengeSubmission)
            return submit(connection, exchange, get);
        if (ChallengeService::handles(path))
            return answer(connection, exchange,
                          service.challenge(target, exchange.client, Clock::now()), "no-cache");
        if (path == "/records/" || path == "/records")
            return answer(connection, exchange, service.table(queryOf(target)), "no-cache");
        if (path == "/") return answer(connection, exchange, service.home(), "no-cache");
        if (const StaticFile* found = path.size() > 1 && path.find('/', 1) == std::string_view::npos
                                          ? files.find(std::string(path.substr(1)))
                                          : nullptr)
            return file(connection, exchange, *found);
        return answer(connection, exchange,
                      RecordsService::error(404, "Pagina non trovata", "Questa pagina non esiste."),
                      "no-cache");
    }

    MHD_Result submit(MHD_Connection* connection, Exchange& exchange, bool get) {
        // Only a page the player opened may store a record: not HEAD, not a picture or frame
        // of another site that points here.
        if (!get)
            return answer(connection, exchange,
                          RecordsService::error(405, "Richiesta non valida",
                                                "Un record si registra solo aprendo il suo "
                                                "indirizzo."),
                          "no-store", "GET");
        const char* dest =
            MHD_lookup_connection_value(connection, MHD_HEADER_KIND, "Sec-Fetch-Dest");
        if (dest && std::string_view(dest) != "document")
            return answer(connection, exchange,
                          RecordsService::error(403, "Richiesta non valida",
                                                "Un record si registra solo dalla finestra dei "
                                                "record del gioco. Il record non è stato "
                                                "registrato."),
                          "no-store");
        if (!accepting)
            return answer(connection, exchange,
                          RecordsService::error(503, "Servizio non disponibile",
                                                "Il servizio si sta fermando: riprova tra poco. "
                                                "Il record non è stato registrato."),
                          "no-store");
        MHD_suspend_connection(connection);
        workers.enqueue([this, connection, &exchange] {
            const std::string_view target = exchange.target;
            exchange.reply = target.substr(0, target.find('?')) == kChallengeSubmission
                                 ? service.challenge(target, exchange.client, Clock::now())
                                 : service.submit(queryOf(target), exchange.client, Clock::now());
            MHD_resume_connection(connection);
        });
        return MHD_YES;
    }

    static MHD_Result access(void* cls, MHD_Connection* connection, const char*, const char* method,
                             const char*, const char*, std::size_t* uploaded, void** context) {
        auto& self = *static_cast<State*>(cls);
        auto* exchange = static_cast<Exchange*>(*context);
        if (!exchange) return MHD_NO;
        if (exchange->reply) // back from a worker
            return self.answer(connection, *exchange, *exchange->reply, "no-store");
        if (!exchange->started) {
            exchange->started = true;
            exchange->method = method;
            exchange->client = self.clientOf(connection);
            if (auto* info =
                    MHD_get_connection_info(connection, MHD_CONNECTION_INFO_SOCKET_CONTEXT))
                if (info->socket_context)
                    self.guard.busy(static_cast<ConnectionGuard::Entry*>(info->socket_context));
            // An answer given now, before the body, closes the connection after it: right for
            // a request that brings a body (none is read), while a plain one is answered at the
            // next call so that the requests sent after it on the connection are answered too.
            if (exchange->method != "GET" && exchange->method != "HEAD" || hasBody(connection))
                return self.route(connection, *exchange);
            return MHD_YES;
        }
        if (*uploaded != 0) {
            *uploaded = 0;
            return MHD_YES;
        }
        if (exchange->routed) return MHD_YES;
        exchange->routed = true;
        return self.route(connection, *exchange);
    }

    static bool hasBody(MHD_Connection* connection) {
        const char* length =
            MHD_lookup_connection_value(connection, MHD_HEADER_KIND, "Content-Length");
        return (length && std::string_view(length) != "0") ||
               MHD_lookup_connection_value(connection, MHD_HEADER_KIND, "Transfer-Encoding");
    }

    static void* begin(void*, const char* uri, MHD_Connection*) {
        auto* exchange = new Exchange;
        exchange->target = uri;
        return exchange;
    }

    static void completed(void* cls, MHD_Connection* connection, void** context,
                          MHD_RequestTerminationCode) {
        auto& self = *static_cast<State*>(cls);
        auto* exchange = static_cast<Exchange*>(*context);
        *context = nullptr;
        if (auto* info = MHD_get_connection_info(connection, MHD_CONNECTION_INFO_SOCKET_CONTEXT))
            if (info->socket_context)
                self.guard.idle(static_cast<ConnectionGuard::Entry*>(info->socket_context),
                                Clock::now());
        if (!exchange) return;
        if (self.options.logRequests && exchange->started)
            serviceLog().request(
                exchange->client, exchange->method, exchange->target, exchange->status,
                exchange->bytes,
                std::chrono::duration<double, std::milli>(Clock::now() - exchange->start).count());
        delete exchange;
    }

    static void notify(void* cls, MHD_Connection* connection, void** socketContext,
                       MHD_ConnectionNotificationCode code) {
        auto& self = *static_cast<State*>(cls);
        if (code == MHD_CONNECTION_NOTIFY_STARTED) {
            const MHD_ConnectionInfo* fd =
                MHD_get_connection_info(connection, MHD_CONNECTION_INFO_CONNECTION_FD);
            *socketContext =
                self.guard.opened(peerOf(connection), fd ? fd->connect_fd : -1, Clock::now());
        } else if (*socketContext) {
            self.guard.closed(static_cast<ConnectionGuard::Entry*>(*socketContext));
            *socketContext = nullptr;
        }
    }

    static MHD_Result admit(void* cls, const sockaddr* address, socklen_t) {
        auto& self = *static_cast<State*>(cls);
        const std::string text = addressText(address);
        if (self.guard.admits(text)) return MHD_YES;
        serviceLog().failure("connessioni " + text, "troppe connessioni aperte da " + text);
        return MHD_NO;
    }

    static void libraryLog(void*, const char* format, va_list arguments) {
        char text[512];
        std::vsnprintf(text, sizeof text, format, arguments);
        std::string line = text;
        while (!line.empty() && (line.back() == '\n' || line.back() == '\r'))
            line.pop_back();
        serviceLog().failure("http", line);
    }
};

HttpFront::HttpFront(RecordsService& service, const StaticFiles& files, FrontOptions options)
    : m_state(std::make_unique<State>(service, files, std::move(options))) {}

HttpFront::~HttpFront() {
    stop();
    if (m_state->daemon)
        MHD_stop_daemon(m_state->daemon); // closes the listening socket too
    else if (m_socket >= 0)
        ::close(m_socket);
}

int HttpFront::bind(const std::string& address, int port) {
    sockaddr_storage storage{};
    socklen_t length = 0;
    auto* v4 = reinterpret_cast<sockaddr_in*>(&storage);
    auto* v6 = reinterpret_cast<sockaddr_in6*>(&storage);
    if (inet_pton(AF_INET, address.c_str(), &v4->sin_addr) == 1) {
        v4->sin_family = AF_INET;
        v4->sin_port = htons(static_cast<std::uint16_t>(port));
        length = sizeof *v4;
    } else if (inet_pton(AF_INET6, address.c_str(), &v6->sin6_addr) == 1) {
        v6->sin6_family = AF_INET6;
        v6->sin6_port = htons(static_cast<std::uint16_t>(port));
        length = sizeof *v6;
    } else {
        m_error = "indirizzo non valido: " + address;
        return -1;
    }
    const int socket = ::socket(storage.ss_family, SOCK_STREAM | SOCK_CLOEXEC, 0);
    // SO_REUSEADDR only lets a restart take the port while old connections linger; without
    // SO_REUSEPORT a second service on the same port fails here.
    const int on = 1;
    ::setsockopt(socket, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
    if (socket < 0 || ::bind(socket, reinterpret_cast<sockaddr*>(&storage), length) != 0 ||
        ::listen(socket, kListenBacklog) != 0) {
        const int cause = errno;
        m_error = "impossibile ascoltare su " + address + ":" + std::to_string(port) + ": " +
                  (cause == EADDRINUSE ? std::string("la porta è già in uso (un altro servizio è "
                                                     "in ascolto)")
                                       : std::string(std::strerror(cause)));
        if (socket >= 0) ::close(socket);
        return -1;
    }
    m_socket = socket;
    length = sizeof storage;
    ::getsockname(socket, reinterpret_cast<sockaddr*>(&storage), &length);
    return ntohs(storage.ss_family == AF_INET ? v4->sin_port : v6->sin6_port);
}

bool HttpFront::run() {
    State& s = *m_state;
    if (m_socket < 0) return false;
    const unsigned threads = std::clamp(std::thread::hardware_concurrency(), 1u, 4u);
    s.daemon = MHD_start_daemon(
        MHD_USE_EPOLL_INTERNAL_THREAD | MHD_ALLOW_SUSPEND_RESUME | MHD_USE_ERROR_LOG, 0,
        &State::admit, &s, &State::access, &s, MHD_OPTION_EXTERNAL_LOGGER, &State::libraryLog, &s,
        MHD_OPTION_LISTEN_SOCKET, m_socket, MHD_OPTION_THREAD_POOL_SIZE, threads,
        MHD_OPTION_CONNECTION_MEMORY_LIMIT, kConnectionMemory, MHD_OPTION_CONNECTION_LIMIT,
        static_cast<unsigned>(s.options.connections), MHD_OPTION_CONNECTION_TIMEOUT,
        static_cast<unsigned>(kWaitLimit.count()), MHD_OPTION_URI_LOG_CALLBACK, &State::begin, &s,
        MHD_OPTION_NOTIFY_COMPLETED, &State::completed, &s, MHD_OPTION_NOTIFY_CONNECTION,
        &State::notify, &s, MHD_OPTION_END);
    if (!s.daemon) {
        m_error = "impossibile avviare il server HTTP";
        return false;
    }
    // The deadlines are looked at, and the request lines written, a few times a second.
    std::unique_lock lock(s.mutex);
    while (!s.stopping) {
        s.stopped.wait_for(lock, std::chrono::milliseconds(250));
        lock.unlock();
        s.guard.sweep(Clock::now());
        serviceLog().flush();
        lock.lock();
    }
    lock.unlock();
    // No new connections; the submissions under way are answered, then everything is closed.
    if (const int listening = MHD_quiesce_daemon(s.daemon); listening >= 0) ::close(listening);
    m_socket = -1;
    s.accepting = false;
    s.workers.shutdown();
    MHD_stop_daemon(s.daemon);
    s.daemon = nullptr;
    serviceLog().flush();
    return true;
}

void HttpFront::stop() {
    {
        std::lock_guard lock(m_state->mutex);
        m_state->stopping = true;
    }
    m_state->stopped.notify_all();
}

} // namespace griglione

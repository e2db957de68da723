// Routes and limits of the records service on cpp-httplib; every answer is a page or JSON.
#include "server/http_front.h"

#include "server/bounded_pool.h"
#include "server/records_service.h"
#include "server/static_files.h"

#include <sys/socket.h>

namespace griglione {
namespace {

constexpr const char* kPagePolicy = "default-src 'none'; style-src 'self' 'unsafe-inline'; "
                                    "img-src 'self'; base-uri 'none'; form-action 'none'; "
                                    "frame-ancestors 'none'";

std::string_view queryOf(const std::string& target) {
    const std::size_t mark = target.find('?');
    return mark == std::string::npos ? std::string_view()
                                     : std::string_view(target).substr(mark + 1);
}

void send(httplib::Response& res, const Reply& reply, const char* cache = "no-cache") {
    res.status = reply.status;
    res.set_header("Content-Security-Policy", kPagePolicy);
    res.set_header("X-Content-Type-Options", "nosniff");
    res.set_header("Referrer-Policy", "no-referrer");
    res.set_header("Cache-Control", cache);
    res.set_content(reply.body, reply.contentType.c_str());
}

} // namespace

HttpFront::HttpFront(RecordsService& service, const StaticFiles& files, int threads)
    : m_server(std::make_unique<httplib::Server>()) {
    httplib::Server& server = *m_server;
    server.new_task_queue = [threads] { return new BoundedPool(threads, kQueuedConnections); };
    server.set_payload_max_length(kMaxBodyBytes);
    server.set_keep_alive_max_count(kKeepAliveRequests);
    server.set_keep_alive_timeout(kKeepAliveSeconds);
    server.set_read_timeout(kReadTimeoutSeconds, 0);
    server.set_write_timeout(kReadTimeoutSeconds, 0);
    server.set_tcp_nodelay(true);
    // The library listens with a backlog of five, too few for a burst of players; the socket is
    // kept here so that bind() can listen on it again with a longer queue.
    server.set_socket_options([this](socket_t socket) {
        httplib::default_socket_options(socket);
        m_socket = socket;
    });

    server.set_pre_routing_handler([](const httplib::Request& req, httplib::Response& res) {
        if (req.target.size() > kMaxTargetBytes) {
            send(res, RecordsService::error(414, "Indirizzo troppo lungo",
                                            "L'indirizzo supera i 2048 caratteri. Il record non "
                                            "è stato registrato."));
        } else if (req.headers.size() > kMaxHeaders) {
            send(res, RecordsService::error(431, "Richiesta non valida", "Troppe intestazioni."));
        } else {
            return httplib::Server::HandlerResponse::Unhandled;
        }
        return httplib::Server::HandlerResponse::Handled;
    });
    server.Get("/records/griglione.asp", [&service](const httplib::Request& req,
                                                    httplib::Response& res) {
        send(res,
             service.submit(queryOf(req.target), req.remote_addr, std::chrono::steady_clock::now()),
             "no-store");
    });
    const auto table = [&service](const httplib::Request& req, httplib::Response& res) {
        send(res, service.table(queryOf(req.target)));
    };
    server.Get("/records/", table);
    server.Get("/records", table);
    server.Get(R"(/(sfide|oggi|giorni)(/.*)?)", [&service](const httplib::Request& req,
                                                           httplib::Response& res) {
        send(res, service.challenge(req.target, req.remote_addr, std::chrono::steady_clock::now()),
             req.path == "/sfide/invia" ? "no-store" : "no-cache");
    });
    server.Get("/", [&service](const httplib::Request&, httplib::Response& res) {
        send(res, service.home());
    });
    server.Get(R"(/([A-Za-z0-9._-]+))",
               [&files](const httplib::Request& req, httplib::Response& res) {
                   if (const StaticFile* file = files.find(req.matches[1])) {
                       res.set_header("X-Content-Type-Options", "nosniff");
                       res.set_header("Cache-Control", "max-age=3600");
                       res.set_content(file->bytes, file->contentType.c_str());
                   } else {
                       res.status = 404;
                   }
               });
    // The service only reads: a form sent to any address is refused as such, not as a missing
    // page.
    const auto readOnly = [](const httplib::Request&, httplib::Response& res) {
        res.set_header("Allow", "GET, HEAD");
        send(res, RecordsService::error(405, "Richiesta non valida",
                                        "Il servizio risponde solo alla lettura delle pagine."));
    };
    server.Post(".*", readOnly);
    server.Put(".*", readOnly);
    server.Patch(".*", readOnly);
    server.Delete(".*", readOnly);
    // Whatever else went wrong, the answer is a page and not a bare status.
    server.set_error_handler([](const httplib::Request&, httplib::Response& res) {
        if (!res.body.empty()) return;
        const int status = res.status;
        send(res, status == 404 ? RecordsService::error(404, "Pagina non trovata",
                                                        "Questa pagina non esiste.")
                                : RecordsService::error(status, "Richiesta non valida",
                                                        "Il servizio non può rispondere a "
                                                        "questa richiesta."));
    });
}

HttpFront::~HttpFront() = default;

int HttpFront::bind(const std::string& address, int port) {
    int bound = -1;
    if (port == 0)
        bound = m_server->bind_to_any_port(address);
    else if (m_server->bind_to_port(address, port))
        bound = port;
    // Listening again on a listening socket only changes the length of its queue.
    if (bound > 0 && m_socket >= 0) ::listen(m_socket, kListenBacklog);
    return bound;
}

bool HttpFront::run() {
    return m_server->listen_after_bind();
}

void HttpFront::stop() {
    m_server->stop();
}

} // namespace griglione

#!/usr/bin/env bash
# The shipped nginx site in front of the real service, both on loopback: two players behind the
# proxy have a record allowance each, and neither they nor a direct client can pass for someone
# else through X-Forwarded-For. Skipped (exit 77) when nginx, openssl or curl is missing.
#   behind_nginx.sh GRIGLIONE-RECORDS SITE-FILE
set -euo pipefail
program=$1 site=$2
for tool in nginx openssl curl; do
    if ! command -v "$tool" >/dev/null && [[ ! -x /usr/sbin/$tool ]]; then
        echo "SKIP: $tool is not installed (apt-get install nginx openssl curl)"
        exit 77
    fi
done
PATH=$PATH:/usr/sbin
dir=$(mktemp -d)
pids=()
cleanup() {
    for pid in "${pids[@]}"; do kill "$pid" 2>/dev/null || true; done
    wait 2>/dev/null || true
    rm -rf "$dir"
}
trap cleanup EXIT

# The service believes 127.0.0.1, where nginx connects from; one record a minute per player.
"$program" --port 0 --database "$dir/records.sqlite" --trusted-proxy 127.0.0.1 \
    --submissions-per-minute 1 >"$dir/service.log" 2>&1 &
pids+=($!)
for _ in $(seq 50); do
    grep -q "in ascolto" "$dir/service.log" 2>/dev/null && break
    sleep 0.1
done
service_port=$(sed -n 's/.*127\.0\.0\.1:\([0-9]*\)\/.*/\1/p' "$dir/service.log" | head -1)
[[ -n $service_port ]] || { echo "the service did not start"; cat "$dir/service.log"; exit 1; }

openssl req -x509 -newkey ec -pkeyopt ec_paramgen_curve:prime256v1 -nodes -days 1 \
    -subj /CN=127.0.0.1 -keyout "$dir/key.pem" -out "$dir/cert.pem" 2>/dev/null
# The shipped site as it is, but for its addresses: the redirect on port 80 is left out.
awk '/^server \{/ { block = ""; inside = 1 } inside { block = block $0 "\n"; if ($0 ~ /^\}/) {
        inside = 0; if (block !~ /listen 80;/) printf "%s", block }; next } { print }' "$site" |
    sed -e "s|server 127.0.0.1:8089;|server 127.0.0.1:$service_port;|" \
        -e "/listen \[::\]/d" \
        -e "s|/etc/ssl/certs/griglione.example.org.pem|$dir/cert.pem|" \
        -e "s|/etc/ssl/private/griglione.example.org.key|$dir/key.pem|" >"$dir/site.conf"

# nginx as an ordinary user: as root, it is started as nobody.
as_user=()
if [[ $(id -u) -eq 0 ]]; then
    as_user=(setpriv --reuid=nobody --regid=nogroup --clear-groups)
    chmod 755 "$dir"
    chown -R nobody:nogroup "$dir"
fi
for attempt in $(seq 5); do
    port=$((20000 + RANDOM % 30000))
    sed "s|listen 443 ssl http2;|listen 127.0.0.1:$port ssl http2;|" "$dir/site.conf" \
        >"$dir/site-$port.conf"
    cat >"$dir/nginx.conf" <<CONF
worker_processes 1;
pid $dir/nginx.pid;
error_log $dir/error.log;
events { worker_connections 64; }
http {
    access_log off;
    client_body_temp_path $dir/body;
    proxy_temp_path $dir/proxy;
    fastcgi_temp_path $dir/fastcgi;
    uwsgi_temp_path $dir/uwsgi;
    scgi_temp_path $dir/scgi;
    include $dir/site-$port.conf;
}
CONF
    [[ $(id -u) -eq 0 ]] && chown -R nobody:nogroup "$dir"
    "${as_user[@]}" nginx -e "$dir/error.log" -p "$dir" -c "$dir/nginx.conf" -g "daemon off;" &
    pids+=($!)
    for _ in $(seq 30); do
        curl -sk -o /dev/null "https://127.0.0.1:$port/" && break 2
        sleep 0.1
    done
    kill "${pids[-1]}" 2>/dev/null || true
done
curl -sk -o /dev/null "https://127.0.0.1:$port/" || { echo "nginx did not start"; cat "$dir/error.log"; exit 1; }

status() { # FROM URL [HEADER]
    curl -sk -o /dev/null -w '%{http_code}' --interface "$1" ${3:+-H "$3"} "$2"
}
record() {
    echo "records/griglione.asp?Nome=$1&programma=Griglione_ABC&data=01-01-2026&punti=2000&Tempo=60&Note=&E_MAIL=&ora=10:00&Language=1"
}
proxy=https://127.0.0.1:$port/ direct=http://127.0.0.1:$service_port/
failures=0
expect() { # WHAT WANTED GOT
    if [[ $2 == "$3" ]]; then echo "ok   $1: $3"; else echo "FAIL $1: $3, expected $2"; failures=$((failures + 1)); fi
}
expect "player A through nginx" 200 "$(status 127.0.0.2 "$proxy$(record A1)")"
expect "player B through nginx" 200 "$(status 127.0.0.3 "$proxy$(record B1)")"
expect "player A again" 429 "$(status 127.0.0.2 "$proxy$(record A2)")"
expect "player A posing as another through nginx" 429 \
    "$(status 127.0.0.2 "$proxy$(record A3)" "X-Forwarded-For: 10.1.1.1")"
expect "a direct client" 200 "$(status 127.0.0.4 "$direct$(record D1)" "X-Forwarded-For: 10.9.9.9")"
expect "the direct client posing as another" 429 \
    "$(status 127.0.0.4 "$direct$(record D2)" "X-Forwarded-For: 10.9.9.8")"
table=$(curl -s "${direct}records/?Language=1&Tempo=60&format=json")
for name in A1 B1 D1; do
    expect "$name in the table" yes "$([[ $table == *\"$name\"* ]] && echo yes || echo no)"
done
for name in A2 A3 D2; do
    expect "$name not in the table" no "$([[ $table == *\"$name\"* ]] && echo yes || echo no)"
done
sleep 0.4 # the request lines are written a few times a second
expect "the log names player B" yes \
    "$(grep -q '^[^ ]* 127\.0\.0\.3 GET /records/griglione.asp' "$dir/service.log" && echo yes || echo no)"
exit $((failures > 0))

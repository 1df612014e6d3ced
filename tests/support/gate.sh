# Sourced by the gates that talk to a simulated control box: a directory of the gate's own, boxes on addresses of its own,
# and a count of what went wrong.
set -uo pipefail
bin=$1
work=$(mktemp -d)
export SAVRENT_V3=$work # where the library keeps its own file too
failures=0
boxes=()
trap 'kill "${boxes[@]}" 2>/dev/null; wait; rm -rf "$work"' EXIT

# A loopback address of this process alone, one for each index from 0 to 60.
own_address() { echo "127.$((1 + ${1:-0})).$(($$ / 256 % 256)).$(($$ % 256))"; }

# Sets `box`. It gets the signals of a terminal, which a background job of a script ignores, and writes FILE.
start_box() { # address, file, options
    env --default-signal=INT "$bin/qorin_cbox_sim" --address "$1" "${@:3}" >"$2" 2>&1 &
    box=$!
    boxes+=($box)
    wait_for listening "$2" || fail "no simulated control box on $1: $(cat "$2")"
}

wait_for() { # text, file
    for _ in $(seq 400); do grep -qs -- "$1" "$2" && return; sleep 0.05; done
    return 1
}

write_configuration() { # file
    printf '[client]\nlog_save_path=%s\nlog_print_out=off\nkinematics_path=%s\n' "${1%.ini}.log" \
        "$bin/../lib/qorin/kinematics" >"$1"
}

fail() {
    echo "$*"
    failures=$((failures + 1))
}

expect_text() { # text, file
    grep -q -- "$1" "$2" || fail "no \"$1\" in: $(cat "$2")"
}

# A Slurm cluster on this machine alone, for tests: munge, the controller and as many nodes as are asked for, each a
# process, all of their files in one folder. To be sourced by bash with `set -euo pipefail`; run as root.
#
#   start_cluster FOLDER COUNT    FOLDER: empty, of a path short enough for a socket; sets SLURM_CONF
#   kill_node NODE                with all that it runs, as if its machine lost power
#   stop_cluster                  ends every process that was started and is left
# shellcheck shell=bash

cluster_folder=
cluster_daemons=()          # process ids of munged and of the controller
declare -A node_daemons=() # of each node's slurmd

# free_port: one that nobody listens on, below those that the system gives to clients.
free_port() {
    local port
    while true; do
        port=$((10000 + RANDOM % 20000))
        (exec 3<>"/dev/tcp/127.0.0.1/$port") 2>/dev/null || { printf '%s\n' "$port"; return 0; }
    done
}

# wait_until SECONDS COMMAND...: false if the command has not succeeded by then.
wait_until() {
    local end=$((SECONDS + $1))
    shift
    until "$@"; do
        [ "$SECONDS" -lt "$end" ] || return 1
        sleep 0.1
    done
}

write_cluster_settings() {
    local count=$1 controller=$2 first=$3
    cat >"$cluster_folder/slurm.conf" <<SETTINGS
ClusterName=tessaline
SlurmctldHost=$(hostname)(127.0.0.1)
SlurmctldPort=$controller
SlurmUser=root
SlurmdUser=root
AuthType=auth/munge
AuthInfo=socket=$cluster_folder/munge/socket
CredType=cred/munge
StateSaveLocation=$cluster_folder/state
SlurmdSpoolDir=$cluster_folder/spool.%n
SlurmctldPidFile=$cluster_folder/slurmctld.pid
SlurmdPidFile=$cluster_folder/slurmd.%n.pid
SlurmctldLogFile=$cluster_folder/slurmctld.log
SlurmdLogFile=$cluster_folder/slurmd.%n.log
ProctrackType=proctrack/linuxproc
TaskPlugin=task/none
JobAcctGatherType=jobacct_gather/none
MpiDefault=none
SelectType=select/cons_tres
SelectTypeParameters=CR_Core
SchedulerType=sched/builtin
SchedulerParameters=batch_sched_delay=0,sched_interval=1
ReturnToService=2
SlurmdTimeout=5
MessageTimeout=2
KillWait=5
MinJobAge=300
MaxArraySize=${cluster_array_size:-1001}
NodeName=n[1-$count] NodeHostname=$(hostname) NodeAddr=127.0.0.1 Port=[$first-$((first + count - 1))] CPUs=${cluster_processors:-1} State=UNKNOWN
PartitionName=all Nodes=ALL Default=YES MaxTime=INFINITE State=UP
SETTINGS
}

# start_node NODE: in the foreground, so that its process id stays known.
start_node() {
    slurmd -N "$1" -D >"$cluster_folder/$1.out" 2>&1 &
    disown
    node_daemons[$1]=$!
}

node_is_idle() { [ "$(sinfo -h -N -n "$1" -o %T 2>/dev/null)" = idle ]; }

start_cluster() {
    cluster_folder=$1
    local count=$2 number
    mkdir -m 755 "$cluster_folder/munge"
    mkdir "$cluster_folder/state"
    chmod 755 "$cluster_folder"
    (umask 077 && mungekey -c -k "$cluster_folder/munge.key")
    munged --foreground --key-file="$cluster_folder/munge.key" --socket="$cluster_folder/munge/socket" \
        --pid-file="$cluster_folder/munge/pid" --log-file="$cluster_folder/munge.log" \
        --seed-file="$cluster_folder/munge.seed" --num-threads=2 >"$cluster_folder/munge.out" 2>&1 &
    cluster_daemons+=($!)
    disown
    write_cluster_settings "$count" "$(free_port)" "$(free_port)"
    export SLURM_CONF=$cluster_folder/slurm.conf
    wait_until 10 test -S "$cluster_folder/munge/socket"
    slurmctld -i -D >"$cluster_folder/slurmctld.out" 2>&1 &
    cluster_daemons+=($!)
    disown
    for ((number = 1; number <= count; number++)); do start_node "n$number"; done
    for ((number = 1; number <= count; number++)); do wait_until 20 node_is_idle "n$number"; done
}

# processes_with NAME=VALUE: the ids of the processes of this cluster's jobs that have begun with it in their environment.
processes_with() {
    { grep -lszFx "$1" /proc/[0-9]*/environ || true; } | { xargs -r grep -lszFx "SLURM_CONF=$SLURM_CONF" || true; } |
        cut -d/ -f3
}

# processes_of_job JOB: without the slurmstepd above them.
processes_of_job() { processes_with "SLURM_JOB_ID=$1"; }

# processes_of_node NODE: the ids of all that its jobs consist of. A slurmstepd leaves the family of its slurmd but
# writes to its log.
processes_of_node() {
    processes_with "SLURMD_NODENAME=$1"
    { find /proc/[0-9]*/fd -maxdepth 1 -lname "$cluster_folder/slurmd.$1.log" 2>/dev/null || true; } | cut -d/ -f3 | sort -u
}

# kill_all SIGNAL PROCESS...: those that are gone already do not matter.
kill_all() {
    local signal=$1 process
    shift
    for process in "$@"; do kill -s "$signal" "$process" 2>/dev/null || true; done
}

kill_node() {
    local processes
    kill_all KILL "${node_daemons[$1]}"
    unset "node_daemons[$1]"
    while mapfile -t processes < <(processes_of_node "$1") && [ ${#processes[@]} -gt 0 ]; do
        kill_all KILL "${processes[@]}"
    done
}

# Their state goes with their folder, so that nothing is lost by killing them.
stop_cluster() {
    local node
    for node in "${!node_daemons[@]}"; do kill_node "$node"; done
    kill_all KILL "${cluster_daemons[@]}"
    cluster_daemons=()
}

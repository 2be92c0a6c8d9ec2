# What writes a company, for the scripts that stop it on its way: each job is a command, JOB, and an operation that
# tells the state it changes, JOB_state. They work on the company in $run, a copy of $folder/made. Sourced, with
# the program's path in $cli and a folder of the script's own in $folder.

run=$folder/run
mkdir "$folder/made"
cp "$(dirname "$cli")/Resource/Sample Data/"* "$folder/made"
fresh() {
  rm -rf "$run"
  cp -r "$folder/made" "$run"
}
ask() { "$cli" sql "${2:-$run/Data.mdb}" "SELECT $1" | tail -n 1; }
count() { ask "Count(*) AS Found FROM $1" "${2-}"; }

"$cli" sql "$folder/made/Data.mdb" "SELECT EmployeeId FROM tblEmployees WHERE IndA = -1 AND Inactive = 0" |
  sed -n '2,$s/$/,12.5/p' >"$folder/pay.csv"
for ((id = 1; id <= ${people:-1500}; id++)); do echo "111-222-333,Killed$id,Ann,K"; done >"$folder/people.csv"
cat >"$folder/options.txt" <<'SCRIPT'
open "${RUN}/Data.mdb"
menu mnuFEmployerUpdate
type txtClaimName "After"
close
SCRIPT

saving=("$cli" pay "$run/Data.mdb" employees "$folder/pay.csv" --industry A)
saving_state() { count "tblEmployees WHERE AmountA = 12.5"; }
importing=("$cli" import employees "$run/Data.mdb" "$folder/people.csv")
importing_state() { count "tblEmployees WHERE LastName LIKE 'Killed%'"; }
compacting=("$cli" compact "$run/Data.mdb" --yes)
compacting_state() { count tblEmpHistory; }
# The first of the keys: they are written one by one.
options=("$cli" script "$folder/options.txt" --set "RUN=$run")
options_state() { sed -n '/^\[Claim\]/,/^\[/s/^Name=//p' "$run/LorvaneConfig.ini"; }

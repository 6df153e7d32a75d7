#!/bin/bash
# Builds everything and runs the tests. See usage below.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
source scripts/packages.sh
source scripts/wine.sh

usage() {
  cat <<'TEXT'
usage: ./test.sh [--all] [--fuzz SECONDS]
  Builds the presets native, x64 and x86. Runs the tests of native (the rules, with sanitizers) and x64 (under Wine).
  Also runs the x64 tests from the archive for Windows machines, and makes signed archives and verifies them.
  --all           also the tests of x86, and --fuzz 20
  --fuzz SECONDS  run the fuzz targets, SECONDS in all
Exit code: 0 everything passed, 1 something failed, 2 nothing failed but some tests could not run, 64 wrong arguments.
TEXT
}

all=false
fuzz_seconds=0
while (($# > 0)); do
  case $1 in
    --all) all=true ;;
    --fuzz)
      if [[ ! ${2-} =~ ^[1-9][0-9]*$ ]]; then
        usage >&2
        exit 64
      fi
      fuzz_seconds=$2
      shift
      ;;
    --help) usage; exit 0 ;;
    *) usage >&2; exit 64 ;;
  esac
  shift
done
if $all && ((fuzz_seconds == 0)); then
  fuzz_seconds=20
fi

failed=()
missing=()
summary=()

# Runs the tests of a preset: run_tests PRESET [in_session PREFIX]
run_tests() {
  local preset=$1 log=build/log/test-$1.txt
  shift
  "$@" run_step "Testing $preset" "$log" run_ctest "$preset" "$log" || failed+=("tests of $preset")
  summary+=("$preset:" "$(sed -n '/ tests passed, /,$p' "$log" | grep . || echo "stopped before the end")")
}

# Runs ctest, whose output goes to the log: run_ctest PRESET LOG
run_ctest() {
  local jobs=1 result=0
  # Windows tests share one desktop, so they run one at a time.
  [[ $1 != native ]] || jobs=$(nproc)
  limited 1800 ctest --test-dir "build/$1" --output-on-failure --no-tests=error --timeout 120 -j"$jobs" || result=$?
  ((result != 124)) || echo "The last test that began: $(sed -n 's/^ *Start *[0-9]*: //p' "$2" | tail -n 1)"
  return "$result"
}

# Runs the archive of the tests in a new prefix, and checks that it restores the registry and removes its folder.
test_archive() {
  rm -rf build/wine/archive
  if ./package.sh --tests &&
    in_session archive run_step "Testing the archive of the tests" build/log/test-archive.txt unpack_and_run; then
    summary+=("archive: $(tail -n 1 build/wine/archive/drive_c/ObrinTests/report.txt | tr -d '\r')")
  else
    failed+=("archive of the tests")
  fi
}

unpack_and_run() {
  local folder=$WINEPREFIX/drive_c/ObrinTests key='HKLM\Software\Obrin' before result=0
  mkdir "$folder"
  (cd "$folder" && cmake -E tar xf "$obrin_root"/dist/ObrinTests-*-x64.zip) || return
  # The workstation remembers a system, as on a machine where the menu has run.
  run_wine_for 60 reg add "$key" /v LastSystem /d 'A b.mnu' /f || return
  run_wine_for 60 reg add "$key\\Menu" /v LastSystem /d UB /f || return
  before=$(run_wine_for 60 reg query "$key" /s) || return
  run_wine_for 900 cmd /c 'C:\ObrinTests\run-tests.cmd' || result=$?
  if ((result == 124)); then
    echo "The last test that began: $(find "$WINEPREFIX/drive_c" -path '*/ObrinTests-*/log.txt' -exec cat {} + |
      sed -n 's/^\[ RUN  *\] //p' | tail -n 1)"
  elif [[ $(run_wine_for 60 reg query "$key" /s) != "$before" ]]; then
    echo "run-tests.cmd has not put the registry back"
    result=1
  elif [[ -n $(find "$WINEPREFIX" -name 'ObrinTests-*') ]]; then
    echo "run-tests.cmd has left its folder behind"
    result=1
  fi
  # The report without the tests that passed.
  ((result == 0)) || tr -d '\r' <"$folder/report.txt" | grep -v -E '^$|^\[( RUN |  +OK |--|==|  PASSED )'
  return "$result"
}

# Makes signed archives in build/signing and verifies the signature of every image in them. Also checks that
# package.sh changes no archive if it cannot sign.
test_signing() {
  if run_step "Testing signed archives" build/log/test-signing.txt sign_and_verify; then
    summary+=("signed archives: 6 images signed, 6 verified")
  else
    failed+=("signed archives")
  fi
}

sign_and_verify() {
  local folder=build/signing preset image before
  rm -rf "$folder"
  mkdir -p "$folder"
  openssl req -x509 -newkey rsa:2048 -nodes -subj '/CN=Test of the Obrin menu' -days 2 \
    -addext keyUsage=digitalSignature -addext extendedKeyUsage=codeSigning \
    -keyout "$folder/key.pem" -out "$folder/certificate.pem" &&
    openssl pkcs12 -export -inkey "$folder/key.pem" -in "$folder/certificate.pem" -passout pass:right \
      -out "$folder/test.pfx" &&
    OBRIN_SIGN_PASSWORD=right ./package.sh --sign "$folder/test.pfx" --to "$folder/dist" || return
  for preset in x64 x86; do
    mkdir "$folder/$preset" &&
      (cd "$folder/$preset" && cmake -E tar xf ../dist/ObrinMenu-*-"$preset".zip) || return
    for image in ObrinMenu.exe ObrinCheck.exe Corvel.dll; do
      limited 60 osslsigncode verify -CAfile "$folder/certificate.pem" -in "$folder/$preset/$image" || return
    done
  done

  before=$(ls -l --full-time "$folder/dist")
  if OBRIN_SIGN_PASSWORD=wrong ./package.sh --sign "$folder/test.pfx" --to "$folder/dist" ||
    OBRIN_SIGN_PASSWORD=right ./package.sh --sign "$folder/missing.pfx" --to "$folder/dist"; then
    echo "package.sh has signed with a wrong password or without a certificate"
    return 1
  fi
  if [[ $(ls -l --full-time "$folder/dist") != "$before" ]]; then
    echo "package.sh could not sign, but has changed the folder of the archives"
    return 1
  fi
}

# Runs every fuzz target for an equal share of the time. A target starts with its seeds and with the inputs that
# earlier runs found.
run_fuzz_targets() {
  local -a targets=()
  local target name folder log share runs total=0
  for target in build/native/bin/fuzz_*; do
    [[ ! -f $target || ! -x $target ]] || targets+=("$target")
  done
  if ((${#targets[@]} == 0)); then
    summary+=("fuzz: no fuzz targets in build/native/bin")
    return
  fi
  share=$((fuzz_seconds / ${#targets[@]}))
  ((share > 0)) || share=1
  for target in "${targets[@]}"; do
    name=${target##*/fuzz_}
    folder=build/fuzz/$name
    log=$folder/log.txt
    mkdir -p "$folder/corpus"
    [[ ! -d fuzz/seeds/$name ]] || cp -r "fuzz/seeds/$name/." "$folder/corpus"
    run_step "Fuzzing $name ($share s)" "$log" limited $((share + 300)) "$target" -max_total_time="$share" \
      -rss_limit_mb=2048 -timeout=10 -print_final_stats=1 -artifact_prefix="$folder/" "$folder/corpus" ||
      failed+=("fuzz target $name (the failing input is in $folder)")
    runs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log")
    total=$((total + ${runs:-0}))
  done
  summary+=("fuzz: ${#targets[@]} targets, $total inputs")
}

install_packages "${build_packages[@]}" "${native_packages[@]}" "${wine_packages[@]}" "${font_packages[@]}" \
  "${guide_packages[@]}" "${sign_packages[@]}" "${sign_test_packages[@]}"

built=()
for preset in native x64 x86; do
  if build_preset "$preset"; then
    built+=("$preset")
  else
    failed+=("build of $preset")
  fi
done

for preset in "${built[@]}"; do
  case $preset in
    native) run_tests native ;;
    x64)
      run_tests x64 in_session x64
      test_archive
      ;;
    x86)
      if ! $all; then
        continue
      elif (select_prefix x86); then
        run_tests x86 in_session x86
      else
        missing+=("x86: built, but its tests were NOT RUN, because there is no 32-bit Wine")
      fi
      ;;
  esac
done
if [[ " ${built[*]} " == *' x64 x86 '* ]]; then
  test_signing
fi
if ((fuzz_seconds > 0)) && [[ " ${built[*]} " == *' native '* ]]; then
  run_fuzz_targets
fi

echo
((${#summary[@]} == 0)) || printf '%s\n' "${summary[@]}"
((${#missing[@]} == 0)) || printf '%s\n' "${missing[@]}"
if ((${#failed[@]} > 0)); then
  printf 'FAILED: %s\n' "${failed[@]}"
  exit 1
fi
((${#missing[@]} == 0)) || exit 2

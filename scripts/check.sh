#!/usr/bin/env bash
# The checks that need no build: the format of the sources and the rooms' floors.
#
#   check.sh          check
#   check.sh --fix    format the sources first
#   check.sh --tidy   also run clang-tidy, on what differs from the last commit or, with --tidy-all, on everything;
#                     needs a configured build/release
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

mapfile -t sources < <(git ls-files --cached --others --exclude-standard '*.cpp' '*.h')

for option in "$@"; do
    case $option in
    --fix) clang-format -i "${sources[@]}" ;;
    --tidy | --tidy-all)
        if [ "$option" = --tidy ]; then
            mapfile -t units < <(git diff --name-only --diff-filter=d HEAD -- '*.cpp')
        else
            mapfile -t units < <(git ls-files '*.cpp')
        fi
        [ ${#units[@]} -eq 0 ] || printf '%s\n' "${units[@]}" |
            xargs -P "$(nproc)" -n 1 clang-tidy -p build/release --quiet
        ;;
    *) echo "check.sh: unknown option $option" >&2; exit 2 ;;
    esac
done

bad=0
unformatted=$(clang-format --dry-run "${sources[@]}" 2>&1 | sed -n 's/^\([^: ]*\):[0-9].*/\1/p' | sort -u)
if [ -n "$unformatted" ]; then
    printf 'not formatted (scripts/check.sh --fix mends it):\n%s\n' "$unformatted" >&2
    bad=1
fi

# A room may include what lies on lower floors, and itself.
declare -A floor=([support]=1 [model]=2 [packaging]=2 [lockscreen]=3 [modules]=4 [store]=5 [device]=6 [kit]=6
                  [cli]=7 [canvas]=7 [editor]=8 [designer]=8 [shell]=9)
while IFS=: read -r file _ include; do
    from=${file#src/}; from=${from%%/*}
    to=${include#*\"}; to=${to%%/*}
    [ -n "${floor[$to]:-}" ] || continue
    if [ "$from" != "$to" ] && [ "${floor[$to]}" -ge "${floor[$from]}" ]; then
        echo "$file includes $include: $to isn't below $from" >&2
        bad=1
    fi
done < <(grep -rn --include='*.h' --include='*.cpp' '^#include "' src)
exit "$bad"

#!/usr/bin/env bash
# What the module offers to the process that loads it: the two names that a plugin loader asks for. Any other could be
# taken for, or replaced by, a name of the host's own. What a linker keeps there for itself is local, and no offer.
#   offered_symbols.sh NM MODULE
set -euo pipefail
offered=$("$1" --dynamic --defined-only --extern-only --format=posix "$2" | cut -d ' ' -f 1 | sort)
wanted=$(printf '%s\n' qt_plugin_instance qt_plugin_query_metadata_v2)
[ "$offered" = "$wanted" ] && exit 0
echo "$(wc -l <<<"$offered") dynamic symbols; beside the two of a plugin:"
comm -23 <(echo "$offered") <(echo "$wanted") | head -20 | c++filt
exit 1

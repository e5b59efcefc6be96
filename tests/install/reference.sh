#!/usr/bin/env bash
# Every number and name that hosts share with a view stands in the reference.
#   reference.sh SOURCE_FOLDER
set -euo pipefail
cd "$1"
rooms=(host headline_list story output search news_view)
missing=0
told() { # what, names
    [ -n "$2" ] || { echo "no $1 was found"; exit 1; }
    for name in $2; do
        grep -qF -- "\`$name\`" docs/embedding_reference.md docs/embedding.md ||
            grep -qE -- "(^|[ |])$name([ ,;.|]|$)" docs/embedding_reference.md ||
            { echo "$1 $name stands nowhere"; missing=1; }
    done
}
told colour "$(grep -rhoE 'COLOR_[A-Za-z0-9_]+' --include='*.cpp' --include='*.h' "${rooms[@]}" | sort -u)"
told setting "$(grep -hoE 'Key = u"[^"]+"' news_view/view_settings.cpp search/search_memory.cpp | cut -d '"' -f 2)"
told option "$(grep -oE 'QLatin1StringView\("[A-Za-z]+"' host/contract/view_options.h | cut -d '"' -f 2)"
told control "$(sed -nE '/first|Timer|storyPane|relatedQuotes|DelayMs/! s/.*constexpr int .* = ([0-9]+);.*/\1/p' \
    host/views/news_control_ids.h)"
told operation "$(grep -h -B 1 '= 0;' host/contract/bk_quote_interface.h | grep -oE 'b?[A-Za-z_]+\(' | tr -d '(')"
exit $missing

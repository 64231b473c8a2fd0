#!/usr/bin/env bash
# Brings the translation files up to the texts of the sources: new texts come in unfinished, texts
# that are gone go out, what is translated stays.
set -euo pipefail
cd "$(dirname "$0")/.."
lupdate=$(qtpaths6 --query QT_HOST_BINS)/lupdate

# The Czech file is named after the setting, not after the language.
for pair in de=de es=es fr=fr pt=pt cz=cs; do
    "$lupdate" -silent -no-obsolete -locations none -source-language en \
        -target-language "${pair#*=}" src -ts "resources/translations/tarn_${pair%=*}.ts"
done

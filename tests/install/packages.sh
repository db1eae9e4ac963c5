# For the tests of what scripts/packages makes: to be read by them, with PACKAGES as their first argument.

packages=$1
if [ ! -d "$packages/stage" ] || [ ! -d "$packages/debs" ]; then
    echo "SKIPPED: scripts/packages has not been run"
    exit 0
fi

# The Debian packages that the project is built, run and tested with: the one list of them. Sourced by install.sh.
packages=(
    # to build
    cmake g++ ninja-build ccache pkg-config git
    libzip-dev libtinyxml2-dev libcli11-dev nlohmann-json3-dev
    libre2-dev # regular expressions whose time is linear: a theme's texts come from outside
    qt6-base-dev
    # to test and check
    libgtest-dev libbenchmark-dev clang-format clang-tidy
    aapt # compiles every nine-patch picture of the templates
    ffmpeg # makes real videos for the tests, and ffprobe is the peer of their inspection
    libgif-dev # writes the GIFs of the tests
    clang libclang-rt-14-dev # the compiler of the fuzz targets, with libFuzzer and the sanitizers
    zip unzip python3 # peers of the benchmarks, and the tests of the program as a whole
)

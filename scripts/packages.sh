# The Debian packages that the project is built, run and tested with: the one list of them. Sourced by install.sh.
packages=(
    # to build
    cmake g++ ninja-build ccache pkg-config git
    libzip-dev libtinyxml2-dev libcli11-dev nlohmann-json3-dev
    libre2-dev # regular expressions whose time is linear: a theme's texts come from outside
    qt6-base-dev
    qt6-tools-dev libqt6opengl6-dev # layouts that are loaded while the program runs; CMake finds them only with the second
    fonts-inter fonts-jetbrains-mono fonts-noto-cjk # the faces of the window, Chinese too
    qt6-translations-l10n # the words of Qt's own file dialogs
    fonts-material-design-icons-iconfont # its icons
    libgif-dev # writes the skin's moving pictures, and the GIFs of the tests: QtGui only reads them
    # to test and check
    libgtest-dev libbenchmark-dev clang-format clang-tidy
    adb aapt # the tools folder holds copies: the way to a phone, and the compiler of nine-patches, which the tests use too
    ffmpeg # makes real videos for the tests, and ffprobe is the peer of their inspection
    clang libclang-rt-14-dev # the compiler of the fuzz targets, with libFuzzer and the sanitizers
    zip unzip python3 # peers of the benchmarks, and the tests of the program as a whole
    xvfb xauth openbox xdotool imagemagick # a screen, a window manager, hands and eyes for looking at the window
)

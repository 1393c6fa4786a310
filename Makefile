# The two commands that matter: `make run` and `make test`.
BUILD ?= build
JOBS ?= $(shell nproc)
CMAKE_FLAGS ?=

.PHONY: all deps configure build run test test-sanitize fuzz bench clean sample install package

all: build

deps:
	@bash scripts/install-deps.sh

$(BUILD)/CMakeCache.txt: | deps
	cmake -S . -B $(BUILD) -DCMAKE_BUILD_TYPE=RelWithDebInfo $(CMAKE_FLAGS)

configure: $(BUILD)/CMakeCache.txt

build: deps configure
	cmake --build $(BUILD) -j $(JOBS)

# Runs the product on its embedded sample database (created on first use).
run: build
	@bash scripts/run.sh $(BUILD)

test: build
	cd $(BUILD) && ctest --output-on-failure -j $(JOBS)

# The tests again under AddressSanitizer and UndefinedBehaviorSanitizer.
test-sanitize: deps
	cmake -S . -B $(BUILD)-asan -DCMAKE_BUILD_TYPE=Debug -DQB_SANITIZE=ON -DQB_BUILD_BENCH=OFF
	cmake --build $(BUILD)-asan -j $(JOBS)
	cd $(BUILD)-asan && ctest --output-on-failure -j $(JOBS)

# The fuzz targets of tests/fuzz/, built with clang (libFuzzer and the
# sanitizers) and each run FUZZ_SECONDS from its seed corpus.
FUZZ_SECONDS ?= 60
fuzz: deps
	cmake -S . -B $(BUILD)-fuzz -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_CXX_COMPILER=clang++ \
	  -DQB_FUZZ=ON -DQB_BUILD_GUI=OFF -DQB_BUILD_BENCH=OFF
	cmake --build $(BUILD)-fuzz -j $(JOBS)
	bash scripts/fuzz.sh $(BUILD)-fuzz $(FUZZ_SECONDS)

# Installs the programs, the desktop entry, the icon and the manual page
# under PREFIX (DESTDIR is honoured too).
PREFIX ?= /usr/local
install: build
	cmake --install $(BUILD) --prefix $(PREFIX)

# A Debian package that installs under /usr, in $(BUILD)/package.
package: build
	cd $(BUILD) && cpack -G DEB

bench: build
	$(BUILD)/quillbox_bench

clean:
	rm -rf $(BUILD) $(BUILD)-asan $(BUILD)-fuzz

# Two commands for a person: `make run` shows what the mapping does, `make test` builds and runs every test. Both install
# what is missing on Debian 12, as root or with sudo.

JOBS := $(shell nproc)
SOURCES := $(shell git ls-files '*.cpp' '*.h' 2>/dev/null)
export CCACHE_DIR ?= $(CURDIR)/build/ccache
export CTEST_PARALLEL_LEVEL ?= $(JOBS)

run_packages := g++ cmake ninja-build pkg-config ccache libxml2-dev nlohmann-json3-dev libcli11-dev \
	libyang2-dev
test_packages := $(run_packages) clang clang-format clang-tidy libclang-rt-14-dev binutils git \
	libgtest-dev libyang2-tools

.PHONY: run test fuzz format format-check tidy generate test-release test-sanitize test-thread clean

run:
	scripts/install-packages $(run_packages)
	cmake --preset run
	cmake --build --preset run -j $(JOBS)
	scripts/show-examples build/run/bin/ocbgp

# Everything that has to hold: formatted, generated sources fresh, no warning of either compiler or of clang-tidy, all
# tests, all tests again under the address and undefined-behaviour sanitizers, and threads under the thread sanitizer.
test:
	scripts/install-packages $(test_packages)
	$(MAKE) format-check
	$(MAKE) test-release
	$(MAKE) tidy
	$(MAKE) test-sanitize
	$(MAKE) test-thread

test-release test-sanitize test-thread: test-%:
	cmake --preset $*
	cmake --build --preset $* -j $(JOBS)
	ctest --preset $*

# Each fuzzer for so many seconds, as many at once as there are processors.
FUZZ_SECONDS ?= 600
fuzz:
	scripts/install-packages $(test_packages)
	cmake --preset sanitize
	cmake --build --preset sanitize -j $(JOBS) --target fuzzers
	cd build/sanitize && ls bin | sed -n 's/^fuzz_//p' | xargs -P $(JOBS) -I NAME sh -c \
		'$(CURDIR)/scripts/fuzz bin/fuzz_NAME $(FUZZ_SECONDS) fuzz/NAME > fuzz_NAME.log 2>&1 || \
		{ tail -n 40 fuzz_NAME.log; exit 1; }; tail -n 6 fuzz_NAME.log'

format-check:
	clang-format --dry-run -Werror $(SOURCES)

format:
	clang-format -i $(SOURCES)

# The library's sources and the host's, not the tests.
tidy:
	cmake --preset sanitize
	run-clang-tidy -quiet -j $(JOBS) -p build/sanitize '^$(CURDIR)/(manageability|host)/.*\.cpp$$'

generate:
	cmake --preset release
	cmake --build --preset release --target generate

clean:
	rm -rf build

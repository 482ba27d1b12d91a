# The project's front door; the build itself is CMake's (see CMakePresets.json).

export CTEST_PARALLEL_LEVEL ?= $(shell nproc)

.PHONY: help run test build bench lint sanitize shuffle fuzz screenshots clean \
	test-windows dist-windows test-kill test-faults test-damage test-server

help:                ## this list
	@sed -n 's/^\([a-z-]*\):.*## /    make \1\t/p' $(MAKEFILE_LIST) | expand -t 24

run:                 ## open the program on the default store, or on $TAMRIVO_STORE
	@scripts/install-packages run
	cmake --preset programs
	cmake --build --preset programs
	@scripts/run

test: build          ## build everything and run the tests
	ctest --preset default

# What these do takes long, so that they are no part of `make test`.
KILLS ?= 1000
TIMES ?= 10000

test-kill: build     ## kill processes at work on a store, KILLS times
	cmake --build --preset default --target tamrivo_kill_test
	build/bin/tamrivo_kill_test $(KILLS)

test-faults: build   ## fail every call of the file system and refuse memory
	cmake --build --preset default --target tamrivo_fault_test
	build/bin/tamrivo_fault_test

test-damage: build   ## flip bytes of a store at random, TIMES times
	cmake --build --preset default --target tamrivo_damage_test
	build/bin/tamrivo_damage_test $(TIMES)

test-server: build   ## twelve writers, a server killed under load, a standby promoted
	cmake --build --preset default --target tamrivo_server_load_test
	build/bin/tamrivo_server_load_test

shuffle: build       ## run every test program three times in a random order
	scripts/shuffle

build:               ## build everything into build/
	@scripts/install-packages run test
	cmake --preset default
	cmake --build --preset default

bench:               ## measure, one line a figure
	@scripts/install-packages run test
	cmake --preset programs
	cmake --build --preset programs --target tamrivo_bench
	build/bin/tamrivo_bench

lint:                ## check formatting and run the static analysis
	@scripts/install-packages run test lint
	cmake --preset default
	scripts/lint

sanitize:            ## run the tests under the address and undefined behaviour sanitizers
	@scripts/install-packages run test
	cmake --preset sanitize
	cmake --build --preset sanitize
	ctest --preset sanitize

fuzz:                ## build a program a reader that feeds it bytes of any kind (clang)
	@scripts/install-packages run lint
	cmake -S . -B build/fuzz -G Ninja -DCMAKE_CXX_COMPILER=clang++ \
		-DBUILD_TESTING=OFF -DTAMRIVO_FUZZ=ON
	cmake --build build/fuzz --target fuzz

screenshots: build   ## draw every window of the desktop program into docs/images/
	QT_QPA_PLATFORM=offscreen build/bin/tamrivo_screenshots examples/sample_loci.tsv docs/images

test-windows:        ## build the module for Windows and test it under Wine
	@scripts/install-packages windows
	cmake --preset windows
	cmake --build --preset windows
	scripts/test-windows

dist-windows:        ## pack the module for Windows into build/windows/tamrivo-windows.zip
	@scripts/install-packages windows
	cmake --preset windows
	cmake --build --preset windows --target tamrivo_component tamrivo_client
	scripts/dist-windows

clean:               ## remove everything built
	rm -rf build

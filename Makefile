# Kelvora: set-up, build, run and test. See README.md.
BUILD ?= build
JOBS ?= $(shell nproc)
CMAKE_FLAGS ?= -DCMAKE_BUILD_TYPE=RelWithDebInfo
EJEMPLO ?= data/ejemplos/velmar80.adk

.PHONY: all setup configure build run test test-punto test-coma bench capturas format clean

all: build

setup:
	@tools/setup.sh

configure: setup
	@cmake -S . -B $(BUILD) -G Ninja $(CMAKE_FLAGS) $(if $(CI),-DKELVORA_WERROR=ON) >/dev/null

build: configure
	@cmake --build $(BUILD) -j $(JOBS)

run: build
	@tools/run.sh $(BUILD) $(EJEMPLO)

test: build
	@$(MAKE) --no-print-directory test-punto test-coma

test-punto:
	@echo "== Pruebas con punto decimal (C.UTF-8)"
	@cd $(BUILD) && LC_ALL=C.UTF-8 LANG=C.UTF-8 ctest --output-on-failure -j $(JOBS)

test-coma:
	@echo "== Pruebas con coma decimal (es_ES.UTF-8)"
	@cd $(BUILD) && LC_ALL=es_ES.UTF-8 LANG=es_ES.UTF-8 ctest --output-on-failure -j $(JOBS)

bench: build
	@for b in $(BUILD)/bin/bench_*; do echo "== $$b"; $$b; done

capturas: build
	@tools/capturas.sh $(BUILD)

format:
	@git ls-files -co --exclude-standard -- src tests bench | grep -E '\.(cpp|h)$$' | xargs clang-format -i

clean:
	@rm -rf $(BUILD)

"""The table of outcomes, and what fails."""

import json
from collections import Counter

from results import outcomes
from trial import BUILDERS, OUTCOMES, is_announced, is_warned, is_wrong


class Report:
    def __init__(self):
        self._counts = {}
        self._all = []
        self._silent = []
        self._changed = []
        self._stale = 0

    def add(self, family, made, blocks, recorded):
        for statement, results in made.items():
            for builder, result in results.items():
                count = self._counts.setdefault(family, {}).setdefault(builder, Counter())
                count[result.outcome] += 1
                self._all.append((family, statement, builder, result))
                if is_wrong(result) and not is_announced(result):
                    self._silent.append((family, statement, builder, result))
            old, new = recorded.get(statement, []), blocks[statement]
            if outcomes(old) != outcomes(new):
                self._changed.append((family, statement, old, new))
            elif old != new:
                self._stale += 1
        for statement in recorded.keys() - made.keys():
            self._changed.append((family, statement, recorded[statement], []))

    def dump(self, name):
        with open(name, "w", encoding="utf-8") as file:
            json.dump([{"family": family, "statement": statement, "builder": builder,
                        "outcome": result.outcome, "detail": result.detail, "text": result.text,
                        "says": [list(said) for said in result.says]}
                       for family, statement, builder, result in self._all], file, indent=1)

    def print_table(self):
        for builder in BUILDERS:
            print(f"\n{builder + ' text':<18}" + "".join(f"{name:>11}" for name in ("all", *OUTCOMES)))
            total = Counter()
            for family, counts in self._counts.items():
                self._print_row(family, counts[builder])
                total += counts[builder]
            self._print_row("total", total)
        print()
        for builder in BUILDERS:
            self._print_shares(builder)

    @staticmethod
    def _print_row(name, count):
        numbers = [sum(count.values())] + [count[outcome] for outcome in OUTCOMES]
        print(f"{name:<18}" + "".join(f"{number:>11}" for number in numbers))

    def _print_shares(self, builder):
        mine = [result for _, _, of, result in self._all if of == builder]
        right = [result for result in mine if result.outcome in ("same", "otherwise")]
        wrong = [result for result in mine if is_wrong(result)]
        silent = sum(of == builder for _, _, of, _ in self._silent)
        print(f"{builder}: {silent} of {len(wrong)} wrong texts are silent; a warning or note have "
              f"{_share(wrong, is_warned)} of the wrong and {_share(right, is_warned)} of the right, "
              f"a warning {_share(wrong, _has_warning)} and {_share(right, _has_warning)}")

    def print_failures(self, options):
        """Prints what fails, and returns whether nothing does."""
        passed = True
        if self._silent and not options.allow_silent:
            passed = False
            print(f"\nFAILED: {len(self._silent)} texts are wrong and nothing is said of it:")
            for family, statement, builder, result in self._silent[: options.show]:
                print(f"  {family}: {statement}\n    {builder} {result.outcome}: {result.detail}")
        if self._changed and not options.update:
            passed = False
            print(f"\nFAILED: {len(self._changed)} statements have another outcome than recorded:")
            for family, statement, old, new in self._changed[: options.show]:
                print(f"  {family}: {statement}")
                for title, lines in (("was", old), ("is", new)):
                    print("\n".join(f"    {title:<4}{text.strip()}" for text in lines or ["nothing"]))
        if self._stale and not options.update:
            print(f"\n{self._stale} records have the same outcome in other words; --update writes them.")
        return passed


def _has_warning(result):
    return any(said.severity == "warning" for said in result.says)


def _share(results, has):
    if not results:
        return "none"
    count = sum(map(has, results))
    return f"{count} ({100 * count / len(results):.1f}%)"

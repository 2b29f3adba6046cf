"""The table of benchmarks sets each measurement beside its own floor."""

import pathlib
import sys
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent))
import bench_ratios  # noqa: E402


def run(name, time, unit="us", **more):
    return {"run_name": name, "real_time": time, "time_unit": unit, **more}


class BenchRatios(unittest.TestCase):
    def test_a_measurement_stands_beside_its_floor(self):
        found = bench_ratios.times({"benchmarks": [run("menu/20", 3, "ms"), run("menu/20/floor", 1500)]})
        self.assertEqual(bench_ratios.table(found), ([("menu/20", 3000, 1500, 2)], []))

    def test_a_measurement_without_a_floor_is_named(self):
        found = bench_ratios.times({"benchmarks": [run("menu/20", 3), run("other/floor", 1)]})
        self.assertEqual(bench_ratios.table(found), ([], ["menu/20"]))

    def test_of_repetitions_the_median_counts(self):
        found = bench_ratios.times({"benchmarks": [
            run("a", 9, run_type="iteration"), run("a", 1, run_type="iteration"),
            run("a", 5, run_type="aggregate", aggregate_name="mean"),
            run("a", 4, run_type="aggregate", aggregate_name="median"),
            run("a", 2, run_type="aggregate", aggregate_name="stddev")]})
        self.assertEqual(found, {"a": 4})


if __name__ == "__main__":
    unittest.main()

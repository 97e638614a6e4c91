"""Proves that a condition selects what SQLite selects for its raw text, and that whatever is no
condition is refused and does nothing.
usage: tests/support/isolated python3 test_conditions.py BUILD_FOLDER"""

import os
import random
import sqlite3
import unittest

from service import Client, Service

COLUMNS = {"ID": int, "ShopID": int, "UserGroupID": int, "User": str, "Password": str, "Memo": str}
TEXTS = ["", "a", "A", "b", "ab", "a b", "it's", "''", "%41", "é", "\U0001f600", "z" * 40, "10", "9",
         "1' OR '1'='1", "&FROM=1&STEP=2", "a+b", "#", "?=&", "\t", "--", "/*", ";"]
NUMBERS = [-2**63, -2**31, -7, -1, 0, 1, 2, 3, 5, 10, 2**31 - 1, 2**63 - 1]
SEED = int(os.environ.get("TOOLVANE_TRIAL_SEED", random.SystemRandom().randrange(2**32)))


class Maker:
    """Conditions of the grammar, with blanks and cases as they come."""

    def __init__(self, chance):
        self.chance = chance

    def word(self, word):
        return self.chance.choice([word, word.lower(), word.capitalize()])

    def blank(self):
        return self.chance.choice(["", " ", "  ", "\t", "\n"])

    def gap(self):
        return self.chance.choice([" ", "  ", "\r\n"])

    def literal(self, column):
        if COLUMNS[column] is int:
            return str(self.chance.choice(NUMBERS))
        return "'" + self.chance.choice(TEXTS).replace("'", "''") + "'"

    def test(self):
        column = self.chance.choice(list(COLUMNS))
        name = self.word(column) + self.gap()
        match self.chance.randrange(6):
            case 0:
                return name + self.word("is") + self.chance.choice([" ", " NOT "]) + self.word("null")
            case 1:
                some = [self.literal(column) for _ in range(self.chance.randint(1, 5))]
                return f"{name}{self.word('in')}{self.blank()}({(',' + self.blank()).join(some)})"
            case 2:
                return (f"{name}{self.word('between')} {self.literal(column)} "
                        f"{self.word('and')} {self.literal(column)}")
            case _:
                sign = self.chance.choice(["=", "<>", "<", "<=", ">", ">="])
                return name + sign + self.blank() + self.literal(column)

    def condition(self, depth=0):
        kind = self.chance.randrange(8) if depth < 6 else 7
        if kind < 3:
            word = self.gap() + self.word(self.chance.choice(["and", "or"])) + self.gap()
            return word.join(self.condition(depth + 1) for _ in range(self.chance.randint(2, 4)))
        if kind == 3:
            return self.word("not") + self.gap() + self.condition(depth + 1)
        if kind == 4:
            return f"({self.blank()}{self.condition(depth + 1)}{self.blank()})"
        return self.chance.choice(["1=1", "0 = 1"]) if self.chance.random() < 0.1 else self.test()

    def order(self):
        if self.chance.random() < 0.5:
            return ""
        parts = [self.chance.choice(list(COLUMNS)) + self.chance.choice(["", " ASC", " desc"])
                 for _ in range(self.chance.randint(1, 3))]
        return " ORDER BY " + ", ".join(parts)


class Conditions(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.service = Service()
        chance = random.Random(1)
        cls.peer = sqlite3.connect(":memory:")
        cls.peer.row_factory = sqlite3.Row
        cls.peer.execute("CREATE TABLE User(ID INTEGER PRIMARY KEY, ShopID INTEGER, UserGroupID "
                         "INTEGER, User TEXT, Password TEXT, Memo TEXT)")
        rows = [(key, chance.choice([-7, 0, 1]), chance.choice([0, 1, 2, 3, 2**31 - 1]),
                 chance.choice(TEXTS), chance.choice([None, *TEXTS]), chance.choice(TEXTS))
                for key in range(1, 120)]
        # Past the service: it would refuse a name that is there, and it writes no NULL.
        with sqlite3.connect(cls.service.database) as database:
            for place in (database, cls.peer):
                place.executemany("INSERT INTO User VALUES(?,?,?,?,?,?)", rows)

    def setUp(self):
        self.client = Client(self.service)
        self.addCleanup(self.client.connection.close)

    @classmethod
    def tearDownClass(cls):
        cls.service.stop()

    def raw(self, clause):
        return [dict(row) for row in self.peer.execute(f"SELECT * FROM User WHERE {clause}")]

    def check(self, condition, order=""):
        behind = order + ", ID" if order else " ORDER BY ID"
        self.assertEqual(self.client.select(condition + order), self.raw(condition + behind),
                         condition + order)

    def test_select_what_sqlite_selects(self):
        print("seed:", SEED)
        maker = Maker(random.Random(SEED))
        selected = 0
        for _ in range(1500):
            condition = maker.condition()
            if len(condition.encode()) < 8000:
                self.check(condition, maker.order())
                selected += bool(self.raw(condition))
        self.assertGreater(selected, 300)

    def test_long_and_deep_ones(self):
        chain = " OR ".join(["ID=7"] * 900)
        self.assertEqual([row["ID"] for row in self.client.select(chain)], [7])
        self.assertEqual(len(self.client.select(f"ID IN ({','.join(map(str, range(1500)))})")), 119)
        self.check("(" * 64 + "ID<5" + ")" * 64)
        self.check("NOT " * 63 + "(ID<5)")
        deep = "ID=3"
        for i in range(21):  # more than SQLite reads as it comes
            deep = f"(ID>{i} AND NOT (ID={i} OR {deep}))"
        self.assertNotIsInstance(self.client.select(deep), str)
        for clause in ("(" * 65 + "ID<5" + ")" * 65, "NOT " * 65 + "ID<5", "(" * 8000,
                       "ID=1" + " " * 8189, " OR ".join(["ID=7"] * 2000)):
            self.assertEqual(self.client.select(clause)[0], "2", clause[:80])
        self.check("ID=1" + " " * 8188)

    def test_pages_are_those_of_the_local_store(self):
        for clause, first, step in [("1=1", 0, 10), ("1=1", 100, 30), ("ID<26", 20, 10), ("1=1", 119, 1),
                                    ("ID<4", 1000003, 7), ("ID<4", 3, 0), ("ID<2", 0, 10), ("0=1", 9, 9),
                                    ("1=1", -5, 3), ("1=1", 2, -2), ("1=1", 2, -9), ("1=1", 5, 10000),
                                    ("1=1 ORDER BY User DESC", 2**31 - 1, 3)]:
            order = ", ID" if "ORDER" in clause else " ORDER BY ID"
            rows = self.raw(clause + order) + [None]  # the end counts as a step
            position = max(first, 0) % len(rows)
            expected = [rows[(position + i) % len(rows)] for i in range(max(step + 2, 0))]
            self.assertEqual(self.client.select(clause, page=f"&FROM={first}&STEP={step}"),
                             [row for row in expected if row], (clause, first, step))
        for page in ("&FROM=0&STEP=10001", "&FROM=0&STEP=99999999999999999999"):
            self.assertEqual(self.client.select("1=1", page=page)[0], "1")
        for page in ("&FROM=0", "&STEP=1", "&FROM=&STEP=1", "&FROM=0&STEP=1%20", "&FROM=a&STEP=1"):
            self.assertEqual(self.client.select("1=1", page=page)[0], "2", page)
        self.check("User='&FROM=1&STEP=2'")

    def test_whatever_else_is_refused(self):
        before = self.client.select("1=1")
        refused = """|1|1=2|1=0|2=2|ID|ID=|=1|ID=1 AND|ID==1|ID!=1|ID=1;|ID=1; DROP TABLE User|ID=1 --|ID=1/**/
            |ID='1'|User=1|User='a|User="a"|"ID"=1|[ID]=1|`ID`=1|User.ID=1|rowid=1|oid=1|ID=ID|1=ID|ID+1=2
            |ID=1.0|ID=1e3|ID=0x1|ID=- 1|ID=--1|ID=+1|ID=9223372036854775808|ID=5AND 1=1|User LIKE 'a'|User GLOB 'a'
            |ID IN ()|ID IN (SELECT ID FROM UserGroup)|ID IN UserGroup|ID IN (1,)|ID IN (1|ID NOT IN (1)
            |ID NOT BETWEEN 1 AND 2|ID BETWEEN 1|ID BETWEEN 1 AND 'a'|ID ISNULL|ID NOTNULL|ID IS 1|ID IS NOT 1
            |EXISTS(SELECT 1)|abs(ID)=1|load_extension('x')|randomblob(9)=1|(SELECT 1)=1|Name='x'|CASE WHEN 1 THEN 1 END
            |User='a' COLLATE NOCASE|ID=1 UNION SELECT * FROM UserGroup|ID=1 LIMIT 1|ID=1 GROUP BY ID|ID=?|ID=:a|ID=$a
            |User=x'41'|User='a' AND 'b'|(ID=1|ID=1)|()|ID=1 ORDER BY|ID=1 ORDER ID|ID=1 ORDER BY 1|ID=1 ORDER BY ID,
            |ID=1 ORDER BY Name|ID=1 ORDER BY ID DESC DESC|ID=1 ORDER BY ID ORDER BY ID|ID=1 ORDER BY ID COLLATE NOCASE
            |ID=1 ORDER BY random()|ID=1\x00|User='\x00'|ID=1 OR OR ID=2|NOT|ID=1 ID=2|ID=(1)|(ID)=1|ID=1=1|ID<1<2""".split("|")
        for clause in (line.strip(" \n") for line in refused):
            self.assertEqual(self.client.select(clause)[0], "2", clause)
            self.assertEqual(self.client.delete(clause), (2, 400), clause)
        self.assertEqual(self.client.delete("ID=1 ORDER BY ID")[0], 2)
        for clause in ("1=1", "0=1", "NOT 0=1", "(1=1 AND NOT (0=1))"):
            self.assertEqual(self.client.delete(clause), (6, 403), clause)
        self.assertEqual(self.client.select("1=1"), before)
        for bytes_ in ("%FF", "User='%C3'", "%ED%A0%80"):  # no UTF-8
            self.assertEqual(self.client.request(
                f"/records/User?OPERATION=SELECT&CLAUSE={bytes_}")[0], 400)
        for bytes_ in ("%", "%4", "%G1", "ID=1%"):
            self.assertEqual(self.client.number(
                f"/records/User?OPERATION=DELETE&CLAUSE={bytes_}"), (1, 400))


if __name__ == "__main__":
    unittest.main(verbosity=2)

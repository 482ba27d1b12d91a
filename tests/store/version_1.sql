BEGIN TRANSACTION;
CREATE TABLE Allele (
        LocusID INTEGER NOT NULL REFERENCES Locus,
        Position INTEGER NOT NULL,
        AlleleReal1 DOUBLE PRECISION NOT NULL,
        AlleleReal2 DOUBLE PRECISION NOT NULL,
        AlleleReal3 DOUBLE PRECISION NOT NULL,
        AlleleReal4 DOUBLE PRECISION NOT NULL,
        AlleleReal5 DOUBLE PRECISION NOT NULL,
        AlleleText1 TEXT NOT NULL,
        AlleleText2 TEXT NOT NULL,
        AlleleText3 TEXT NOT NULL,
        AlleleInt1 INTEGER NOT NULL,
        AlleleInt2 INTEGER NOT NULL,
        AlleleInt3 INTEGER NOT NULL,
        PRIMARY KEY (LocusID, Position));
INSERT INTO "Allele" VALUES(3,1,94.05,93.55,94.55,8.0,0.0,'8','','',2,1,0);
INSERT INTO "Allele" VALUES(3,2,101.08,100.58,101.58,9.3,0.0,'9.3','','',2,0,0);
INSERT INTO "Allele" VALUES(4,1,81.79,81.29,82.29,0.0,0.0,'X','','',2,0,0);
INSERT INTO "Allele" VALUES(5,1,258.45,257.95,258.95,12.2,0.0,'12.2','','',2,0,0);
CREATE TABLE AnalysisParameter (
        ParameterID INTEGER NOT NULL PRIMARY KEY,
        Revision INTEGER NOT NULL,
        Name TEXT NOT NULL,
        NameKey TEXT NOT NULL UNIQUE,
        LocusTagListCount INTEGER NOT NULL);
INSERT INTO "AnalysisParameter" VALUES(6,2,'Casework','casework',1);
CREATE TABLE AnalysisParameterTag (
        ParameterID INTEGER NOT NULL REFERENCES AnalysisParameter,
        LocusTagID INTEGER NOT NULL,
        Position INTEGER NOT NULL,
        PRIMARY KEY (ParameterID, LocusTagID));
INSERT INTO "AnalysisParameterTag" VALUES(6,3,1);
CREATE TABLE LastNumber (Number INTEGER NOT NULL);
INSERT INTO "LastNumber" VALUES(6);
CREATE TABLE Locus (
        LocusID INTEGER NOT NULL PRIMARY KEY,
        Revision INTEGER NOT NULL,
        LocusTag TEXT NOT NULL,
        TagKey TEXT NOT NULL,
        IsCurrent INTEGER NOT NULL,
        DateLastModified BIGINT NOT NULL, -- Seconds since 1970, UTC.
        LocusName TEXT NOT NULL,
        ProjectID INTEGER NOT NULL,
        ProjectName TEXT NOT NULL,
        DyeIndex INTEGER NOT NULL,
        FragStart INTEGER NOT NULL,
        FragEnd INTEGER NOT NULL,
        RepeatLength INTEGER NOT NULL,
        RepeatUnitSequence TEXT NOT NULL,
        ShortestAlleleSize INTEGER NOT NULL,
        RepeatsInShortestAllele TEXT NOT NULL,
        AlleleNamingConventionTypeID INTEGER NOT NULL,
        StartAtAlphanumeric TEXT NOT NULL,
        StartAtNumeric INTEGER NOT NULL,
        PrimerSet TEXT NOT NULL,
        GenBank TEXT NOT NULL,
        PrimerLabelTypeID INTEGER NOT NULL,
        FwdPrimer TEXT NOT NULL,
        RevPrimer TEXT NOT NULL,
        ConfInt DOUBLE PRECISION NOT NULL,
        SystemConfInt DOUBLE PRECISION NOT NULL,
        UserSpecifiedConfInt INTEGER NOT NULL,
        SearchForStutter INTEGER NOT NULL,
        DetShortStutter INTEGER NOT NULL,
        DetLongStutter INTEGER NOT NULL,
        StutterWidth INTEGER NOT NULL,
        RelStutter INTEGER NOT NULL,
        ApparentSizeIncludesA INTEGER NOT NULL,
        DetectA INTEGER NOT NULL,
        UseA INTEGER NOT NULL,
        DetectSpuriousPeaks INTEGER NOT NULL,
        MaxSpurHeight INTEGER NOT NULL,
        Ploidy INTEGER NOT NULL);
INSERT INTO "Locus" VALUES(3,1,'D3S1358','d3s1358',1,1795419802,'D3S1358',2,'Casework',0,92,149,4,'',94,'8',1000,'A',1,'P','',1005,'','',0.5,0.5,0,0,1,0,1,15,0,0,0,0,10,2);
INSERT INTO "Locus" VALUES(4,1,'AMEL','amel',1,1795419802,'AMEL',2,'Casework',3,78,92,9,'',82,'1',1000,'A',1,'P','',1005,'','',0.5,0.5,0,0,1,0,1,15,0,0,0,0,10,2);
INSERT INTO "Locus" VALUES(5,1,'FGA','fga',1,1795419802,'FGA',2,'Casework',2,257,420,4,'',258,'12.2',1000,'A',1,'P','',1005,'','',0.5,0.5,0,0,1,0,1,15,0,0,0,0,10,2);
CREATE TABLE Project (
        ProjectID INTEGER NOT NULL PRIMARY KEY,
        Name TEXT NOT NULL,
        NameKey TEXT NOT NULL UNIQUE);
INSERT INTO "Project" VALUES(1,'Default','default');
INSERT INTO "Project" VALUES(2,'Casework','casework');
CREATE TABLE SchemaVersion (Version INTEGER NOT NULL);
INSERT INTO "SchemaVersion" VALUES(1);
CREATE UNIQUE INDEX LocusByTag ON Locus (TagKey) WHERE TagKey <> '';
COMMIT;
